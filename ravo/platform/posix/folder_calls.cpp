#include <ravo/platform/posix/attributes.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_file_system.h>
#include <ravo/runtime/text.h>

#include <filesystem>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

constexpr mode_t kNewFolderRights = 0777;

// Without delimiters at the end, so that a link to a folder is the link.
std::string WithoutDelimiters(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

bool IsRoot(const std::string& path) {
  std::error_code error;
  return std::filesystem::equivalent(path, "/", error) && !error;
}

// The library's removal opens each folder without following links.
bool DeleteTree(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::remove_all(path, error) != static_cast<std::uintmax_t>(-1) && !error;
}

bool DeleteContents(const std::string& folder) {
  std::error_code error;
  std::vector<std::filesystem::path> names;
  for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    names.push_back(at->path());
  }
  bool is_empty = !error;
  for (const auto& name : names) is_empty = DeleteTree(name) && is_empty;
  return is_empty;
}

}  // namespace

std::optional<std::uint32_t> PosixFileSystem::Attributes(std::u16string_view name) const {
  const auto path = HostPath(name, root_);
  struct stat facts {};
  if (!path || stat(path->c_str(), &facts) != 0) return std::nullopt;
  return AttributesOf(*path, S_ISDIR(facts.st_mode));
}

std::u16string PosixFileSystem::CurrentFolder() const {
  std::error_code error;
  return FromUtf8(std::filesystem::current_path(error).string());
}

bool PosixFileSystem::SetCurrentFolder(std::u16string_view folder) const {
  const auto path = HostPath(folder, root_);
  return path && chdir(path->c_str()) == 0;
}

bool PosixFileSystem::CreateFolder(std::u16string_view folder) const {
  const auto path = HostPath(folder, root_);
  return path && mkdir(path->c_str(), kNewFolderRights) == 0;
}

bool PosixFileSystem::DeleteFolder(std::u16string_view folder, FolderPart part) const {
  const auto path = HostPath(folder, root_);
  if (!path || path->empty() || IsRoot(*path)) return false;
  if (part == FolderPart::Contents) return DeleteContents(*path);
  const std::string itself = WithoutDelimiters(*path);
  std::error_code error;
  const auto kind = std::filesystem::symlink_status(itself, error).type();
  return kind != std::filesystem::file_type::not_found && !error && DeleteTree(itself);
}

bool PosixFileSystem::RemoveFile(std::u16string_view name) const {
  const auto path = HostPath(name, root_);
  return path && unlink(path->c_str()) == 0;
}

}  // namespace ravo::platform::posix

#include <ravo/platform/posix/attributes.h>
#include <ravo/platform/posix/folder_deletion.h>
#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/text.h>

#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

constexpr mode_t kNewFolderRights = 0777;

// Removes trailing delimiters, so that a link to a folder is the link and not its target.
std::string WithoutDelimiters(std::string path) {
  // Untested: the caller refused the root; any other name has more than delimiters.
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

bool IsRoot(const std::string& path) {
  struct stat facts {};
  struct stat root {};
  // Untested: the call fails only if the system is broken.
  if (stat(path.c_str(), &facts) != 0 || stat("/", &root) != 0) return false;
  // Untested: the folders of the tests are on the disk of the root.
  return facts.st_dev == root.st_dev && facts.st_ino == root.st_ino;
}

bool IsThere(const std::string& path) {
  struct stat facts {};
  return lstat(path.c_str(), &facts) == 0;
}

}  // namespace

std::optional<std::uint32_t> PosixFiles::Attributes(std::u16string_view name) const {
  const auto path = HostPath(name, root_);
  struct stat facts {};
  if (!path || stat(path->c_str(), &facts) != 0) return std::nullopt;
  return AttributesOf(*path, S_ISDIR(facts.st_mode));
}

std::u16string PosixFiles::CurrentFolder() const {
  std::error_code error;
  return FromUtf8(std::filesystem::current_path(error).string());
}

bool PosixFiles::SetCurrentFolder(std::u16string_view folder) const {
  const auto path = HostPath(folder, root_);
  return path && chdir(path->c_str()) == 0;
}

bool PosixFiles::CreateFolder(std::u16string_view folder) const {
  const auto path = HostPath(folder, root_);
  return path && mkdir(path->c_str(), kNewFolderRights) == 0;
}

bool PosixFiles::DeleteFolder(std::u16string_view folder, FolderPart part) const {
  const auto path = HostPath(folder, root_);
  if (!path || path->empty() || IsRoot(*path)) return false;
  if (part == FolderPart::Contents)
    return DeleteEntriesOf(open(path->c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  const std::string itself = WithoutDelimiters(*path);
  return IsThere(itself) && DeleteEntry(itself.c_str());
}

bool PosixFiles::RemoveFile(std::u16string_view name) const {
  const auto path = HostPath(name, root_);
  return path && unlink(path->c_str()) == 0;
}

}  // namespace ravo::platform::posix

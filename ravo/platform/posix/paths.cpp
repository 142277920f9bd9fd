#include <ravo/platform/posix/paths.h>
#include <ravo/platform/posix/posix_machine.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace ravo::platform::posix {
namespace {

// Joins both with one delimiter between them.
std::string Joined(std::string folder, std::string_view name) {
  if (!folder.ends_with('/')) folder.push_back('/');
  while (name.starts_with('/')) name.remove_prefix(1);
  return folder.append(name);
}

// Empty if the system does not tell.
std::string CurrentFolder() {
  std::error_code error;
  return std::filesystem::current_path(error).string();
}

}  // namespace

std::optional<std::string> HostPath(std::u16string_view name, std::span<const Drive> drives) {
  if (name.find(u'\0') != std::u16string_view::npos) return std::nullopt;
  const auto letter = DriveLetterOf(name);
  const Drive* drive = letter ? FindDrive(drives, *letter) : nullptr;
  std::string path = ToUtf8(drive ? name.substr(2) : name);
  std::ranges::replace(path, '\\', '/');
  return drive ? Joined(drive->folder, path) : path;
}

std::optional<std::string> HostPath(std::u16string_view name, const std::string& root) {
  return HostPath(name, DriveLetterOf(name) ? CurrentDrives(root) : std::vector<Drive>());
}

std::string NormalizedPath(std::string_view path) {
  const bool is_folder = path.ends_with('/');
  std::string result;
  while (!path.empty()) {
    const std::size_t end = path.find('/');
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    if (part.empty() || part == ".") continue;
    if (part == "..") {
      result.resize(result.empty() ? 0 : result.rfind('/'));
    } else {
      result.append("/").append(part);
    }
  }
  return result.empty() || is_folder ? result + "/" : result;
}

std::u16string PosixPaths::FullPath(std::u16string_view name) const {
  const auto path = HostPath(name, root_);
  if (!path || path->empty()) return {};
  if (path->starts_with('/')) return FromUtf8(NormalizedPath(*path));
  const std::string folder = CurrentFolder();
  return folder.empty() ? std::u16string() : FromUtf8(NormalizedPath(Joined(folder, *path)));
}

}  // namespace ravo::platform::posix

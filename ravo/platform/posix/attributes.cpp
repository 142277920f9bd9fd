#include <ravo/platform/files.h>
#include <ravo/platform/posix/attributes.h>

#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

// Tells whether the last part of a path begins with a dot and is neither "." nor "..".
bool IsHidden(std::string_view path) {
  while (path.ends_with('/')) path.remove_suffix(1);
  const std::string_view name = path.substr(path.rfind('/') + 1);
  return name.starts_with('.') && name != "." && name != "..";
}

}  // namespace

bool IsFolder(const std::string& path) {
  struct stat facts {};
  return stat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

std::uint32_t AttributesOf(const std::string& path, bool is_folder) {
  std::uint32_t attributes = is_folder ? kFolderAttribute : kArchiveAttribute;
  // Untested: root may write everywhere; the test of read-only files skips itself for root.
  if (access(path.c_str(), W_OK) != 0) attributes |= kReadOnlyAttribute;
  if (IsHidden(path)) attributes |= kHiddenAttribute;
  return attributes;
}

}  // namespace ravo::platform::posix

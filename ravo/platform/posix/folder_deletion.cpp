#include <ravo/platform/posix/folder_deletion.h>
#include <ravo/platform/posix/open_folder.h>

#include <cerrno>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

// All names before anything is deleted: a folder that changes may be read with gaps.
std::optional<std::vector<std::string>> NamesIn(DIR* folder) {
  std::vector<std::string> names;
  for (;;) {
    errno = 0;
    const dirent* const entry = readdir(folder);
    if (!entry) break;
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  return errno == 0 ? std::optional(std::move(names)) : std::nullopt;
}

}  // namespace

bool DeleteEntriesOf(int folder) {
  const OpenFolder open(folder == -1 ? nullptr : fdopendir(folder));
  if (!open) {
    if (folder != -1) close(folder);
    return false;
  }
  const auto names = NamesIn(open.get());
  bool are_gone = names.has_value();
  for (const std::string& name : names.value_or(std::vector<std::string>())) {
    are_gone = DeleteEntry(dirfd(open.get()), name.c_str()) && are_gone;
  }
  return are_gone;
}

bool DeleteEntry(int parent, const char* name) {
  constexpr int itself = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
  if (unlinkat(parent, name, 0) == 0 || errno == ENOENT) return true;
  // Systems call it one or the other that something is a folder.
  if (errno != EISDIR && errno != EPERM) return false;
  static_cast<void>(DeleteEntriesOf(openat(parent, name, itself)));
  return unlinkat(parent, name, AT_REMOVEDIR) == 0;
}

}  // namespace ravo::platform::posix

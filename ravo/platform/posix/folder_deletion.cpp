#include <ravo/platform/posix/folder_deletion.h>
#include <ravo/platform/posix/open_folder.h>

#include <cerrno>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ravo::platform::posix {
namespace {

constexpr int kFolderItself = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

// The innermost folders of a path stay open, at least two: from a folder that may be read but not entered
// there is no way to its parent.
constexpr std::size_t kMostOpen = 8;

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

OpenFolder Opened(int folder) {
  OpenFolder open(folder == -1 ? nullptr : fdopendir(folder));
  // Untested: the C library would have to run out of memory.
  if (!open && folder != -1) close(folder);
  return open;
}

// Identifies a folder independently of its name.
struct Identity {
  dev_t device = 0;
  ino_t number = 0;

  bool operator==(const Identity&) const = default;
};

std::optional<Identity> IdentityOf(const OpenFolder& folder) {
  struct stat facts {};
  // Untested: the call fails only if the system is broken.
  if (fstat(dirfd(folder.get()), &facts) != 0) return std::nullopt;
  return Identity{facts.st_dev, facts.st_ino};
}

// A folder on the path from the outermost one to the current one.
struct Level {
  OpenFolder open;
  std::optional<Identity> identity;
  // Names to delete; the last one is being deleted.
  std::vector<std::string> names;

  [[nodiscard]] int Descriptor() const { return dirfd(open.get()); }
};

enum class Step { Gone, Stays, IsFolder };

Step Unlink(int parent, const char* name) {
  // Untested: the name would have to be deleted between two calls.
  if (unlinkat(parent, name, 0) == 0 || errno == ENOENT) return Step::Gone;
  // Systems report "is a folder" by either code.
  return errno == EISDIR || errno == EPERM ? Step::IsFolder : Step::Stays;
}

bool RemoveFolder(int parent, const char* name) { return unlinkat(parent, name, AT_REMOVEDIR) == 0; }

// Deletes without recursion: neither the stack nor the number of open files limits how deep folders nest.
class Deletion {
 public:
  // Deletes the contents of `folder`; false if something stays.
  bool Run(OpenFolder folder) {
    Enter(std::move(folder));
    while (!path_.empty()) {
      if (!path_.back().names.empty())
        DeleteNext();
      else if (!Leave())
        return false;
    }
    return are_gone_;
  }

 private:
  void Enter(OpenFolder folder) {
    const auto identity = IdentityOf(folder);
    auto names = NamesIn(folder.get());
    are_gone_ = names.has_value() && are_gone_;
    path_.push_back({std::move(folder), identity, std::move(names).value_or(std::vector<std::string>())});
    if (path_.size() > kMostOpen) path_[path_.size() - 1 - kMostOpen].open.reset();
  }

  // True if there is a folder of that name and it can be opened.
  bool EnterChild(int parent, const char* name) {
    OpenFolder folder = Opened(openat(parent, name, kFolderItself));
    if (!folder) return false;
    Enter(std::move(folder));
    return true;
  }

  void DeleteNext() {
    const int parent = path_.back().Descriptor();
    const char* const name = path_.back().names.back().c_str();
    const Step step = Unlink(parent, name);
    if (step == Step::IsFolder && EnterChild(parent, name)) return;
    Finish(step == Step::Gone || (step == Step::IsFolder && RemoveFolder(parent, name)));
  }

  // Goes up to the parent and deletes the folder, which should be empty now; false if there is no way up.
  bool Leave() {
    const OpenFolder left = std::move(path_.back().open);
    path_.pop_back();
    if (path_.empty()) return true;
    Level& parent = path_.back();
    // Untested: another program would have to move the folder while it is deleted.
    if (!Reopen(parent, left)) return false;
    Finish(RemoveFolder(parent.Descriptor(), parent.names.back().c_str()));
    return true;
  }

  static bool Reopen(Level& level, const OpenFolder& child) {
    if (level.open) return true;
    level.open = Opened(openat(dirfd(child.get()), "..", kFolderItself));
    // Another program may have moved the child elsewhere.
    // Untested: another program would have to move the folder while it is deleted.
    return level.open && level.identity && IdentityOf(level.open) == level.identity;
  }

  void Finish(bool is_gone) {
    are_gone_ = is_gone && are_gone_;
    path_.back().names.pop_back();
  }

  std::vector<Level> path_;
  bool are_gone_ = true;
};

}  // namespace

bool DeleteEntriesOf(int folder) {
  OpenFolder open = Opened(folder);
  return open && Deletion().Run(std::move(open));
}

bool DeleteEntry(const char* path) {
  const Step step = Unlink(AT_FDCWD, path);
  if (step != Step::IsFolder) return step == Step::Gone;
  static_cast<void>(DeleteEntriesOf(open(path, kFolderItself)));
  return RemoveFolder(AT_FDCWD, path);
}

}  // namespace ravo::platform::posix

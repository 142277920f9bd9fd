#include "draft_file.h"

#include <cerrno>
#include <csignal>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tool {

namespace {

[[noreturn]] void ThrowErrno() { throw std::system_error(errno, std::generic_category()); }

}  // namespace

// Outside the anonymous namespace: `System` has one.
class DraftDescriptor {
 public:
  explicit DraftDescriptor(int number = -1) : number_(number) {}
  DraftDescriptor(DraftDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  DraftDescriptor& operator=(DraftDescriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~DraftDescriptor() {
    if (number_ >= 0) close(number_);
  }
  [[nodiscard]] int Number() const { return number_; }
  void Close() {
    if (close(std::exchange(number_, -1)) != 0) ThrowErrno();
  }

 private:
  int number_;
};

namespace {

namespace fs = std::filesystem;

DraftDescriptor Checked(int number) {
  if (number < 0) ThrowErrno();
  return DraftDescriptor(number);
}

// A signal that ends the process waits while a draft is made and noted for deletion.
class SignalsHeldBack {
 public:
  SignalsHeldBack() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~SignalsHeldBack() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  SignalsHeldBack(const SignalsHeldBack&) = delete;
  SignalsHeldBack& operator=(const SignalsHeldBack&) = delete;

 private:
  sigset_t before_{};
};

// The file to which a link leads.
fs::path Followed(const fs::path& path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
  std::error_code error;
  fs::path file = fs::canonical(path, error);
  if (error == std::errc::no_such_file_or_directory) throw RefusedTarget{Refused::IsDeadLink};
  if (error) throw std::system_error(error);
  return file;
}

// No value if there is no such file.
std::optional<struct stat> StatusOf(const fs::path& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0) return status;
  if (errno != ENOENT) ThrowErrno();
  return {};
}

// The superuser can write to a file without that permission; it is refused all the same.
bool IsReadOnly(const fs::path& path, mode_t mode) {
  constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
  return (mode & kAnyWrite) == 0 || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
}

mode_t ModeOfNewFiles() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

// Access lists and other extended attributes, as far as they may be set.
void CopyAttributes(const fs::path& from, int to) {
  std::string names(64U << 10, '\0');
  const ssize_t size = listxattr(from.c_str(), names.data(), names.size());
  std::string value(64U << 10, '\0');
  for (ssize_t at = 0; at < size;) {
    const char* const name = names.data() + at;
    const ssize_t length = getxattr(from.c_str(), name, value.data(), value.size());
    if (length >= 0)
      static_cast<void>(fsetxattr(to, name, value.data(), static_cast<std::size_t>(length), 0));
    at += static_cast<ssize_t>(std::char_traits<char>::length(name)) + 1;
  }
}

// The owner stays if the process may set it; without it, a program does not run as its owner.
void CopyStatus(const struct stat& status, int to) {
  const bool owned = fchown(to, status.st_uid, status.st_gid) == 0 ||
                     (fchown(to, static_cast<uid_t>(-1), status.st_gid) == 0 && status.st_uid == geteuid());
  if (fchmod(to, status.st_mode & (owned ? 07777 : 0777)) != 0) ThrowErrno();
}

}  // namespace

struct DraftFile::System {
  fs::path target;
  std::string name;
  DraftDescriptor folder;
  std::string draft;
  DraftDescriptor file;
  std::optional<DeleteOnInterruption> interruption;

  void CreateDraft() {
    const SignalsHeldBack held_back;
    do {
      draft = NewDraftName();
      file = DraftDescriptor(
          openat(folder.Number(), draft.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    } while (file.Number() < 0 && errno == EEXIST);
    if (file.Number() < 0) {
      draft.clear();
      ThrowErrno();
    }
    interruption.emplace(folder.Number(), draft);
  }
};

DraftFile::DraftFile(const fs::path& path, bool replace_read_only) : system_(std::make_unique<System>()) {
  const fs::path target = Followed(path);
  const auto status = StatusOf(target);
  if (status && S_ISDIR(status->st_mode)) throw RefusedTarget{Refused::IsFolder};
  if (status && !S_ISREG(status->st_mode)) {
    system_->file = Checked(open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
    return;
  }
  if (status && !replace_read_only && IsReadOnly(target, status->st_mode))
    throw RefusedTarget{Refused::IsReadOnly};
  system_->target = target;
  system_->name = target.filename().string();
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  system_->folder = Checked(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (system_->name.empty()) throw std::system_error(std::make_error_code(std::errc::is_a_directory));
  system_->CreateDraft();
}

DraftFile::~DraftFile() {
  if (!system_->draft.empty()) unlinkat(system_->folder.Number(), system_->draft.c_str(), 0);
}

void DraftFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(system_->file.Number(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) ThrowErrno();
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void DraftFile::Publish() {
  if (system_->draft.empty()) return system_->file.Close();
  const int file = system_->file.Number();
  if (const auto before = StatusOf(system_->target)) {
    CopyStatus(*before, file);
    CopyAttributes(system_->target, file);
  } else if (fchmod(file, ModeOfNewFiles()) != 0) {
    ThrowErrno();
  }
  system_->file.Close();
  const int folder = system_->folder.Number();
  if (renameat(folder, system_->draft.c_str(), folder, system_->name.c_str()) != 0) ThrowErrno();
  system_->interruption.reset();
  system_->draft.clear();
}

}  // namespace tool

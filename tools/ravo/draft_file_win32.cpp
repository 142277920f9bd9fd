#include "draft_file.h"

#include <algorithm>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include <windows.h>

namespace tool {

// Outside the anonymous namespace: `System` has one.
class DraftHandle {
 public:
  explicit DraftHandle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
  DraftHandle(DraftHandle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  DraftHandle& operator=(DraftHandle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~DraftHandle() { Close(); }
  [[nodiscard]] HANDLE Value() const { return handle_; }
  [[nodiscard]] bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  void Close() {
    if (IsOpen()) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
  }

 private:
  HANDLE handle_;
};

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Throw(DWORD code) {
  if (code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION) throw RefusedTarget{Refused::IsInUse};
  throw std::system_error(static_cast<int>(code), std::system_category());
}
[[noreturn]] void ThrowLastError() { Throw(GetLastError()); }

// Longer paths need the prefix that turns the system's limit of 260 units off.
constexpr std::size_t kLongestPlainPath = 240;

std::wstring Extended(const fs::path& path) {
  std::wstring full(32768, L'\0');
  const DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  full.resize(length < full.size() ? length : 0);
  if (full.size() < kLongestPlainPath || full.starts_with(LR"(\\)")) return path.wstring();
  return LR"(\\?\)" + full;
}

std::optional<DWORD> AttributesOf(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES) return attributes;
  const DWORD error = GetLastError();
  if (error != ERROR_FILE_NOT_FOUND) Throw(error);
  return {};
}

fs::path Followed(const fs::path& path) {
  std::error_code error;
  if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
  fs::path file = fs::canonical(path, error);
  if (error) throw RefusedTarget{Refused::IsDeadLink};
  return file;
}

// A target that exists, opened for writing; a program that keeps it to itself is noticed before any work.
DraftHandle OpenTarget(const std::wstring& path) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  DraftHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, kShared, nullptr, OPEN_EXISTING, 0, nullptr));
  if (!file.IsOpen()) ThrowLastError();
  return file;
}

}  // namespace

struct DraftFile::System {
  std::wstring target;
  std::wstring draft;
  DraftHandle file;
  std::optional<DeleteOnInterruption> interruption;

  void CreateDraft() {
    const fs::path folder = fs::path(target).parent_path();
    // Shared for deletion by the handler of interruptions alone.
    do {
      draft = (folder / NewDraftName()).wstring();
      file = DraftHandle(
          CreateFileW(draft.c_str(), GENERIC_WRITE, FILE_SHARE_DELETE, nullptr, CREATE_NEW, 0, nullptr));
    } while (!file.IsOpen() && GetLastError() == ERROR_FILE_EXISTS);
    if (!file.IsOpen()) {
      draft.clear();
      ThrowLastError();
    }
    interruption.emplace(-1, draft);
  }

  // The new file takes the attributes, access list and creation time of the old one.
  void Replace(DWORD attributes) const {
    const bool read_only = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (read_only)
      SetFileAttributesW(target.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    const bool replaced = ReplaceFileW(target.c_str(), draft.c_str(), nullptr,
                                       REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0 ||
                          MoveFileExW(draft.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
    const DWORD error = GetLastError();
    if (read_only) SetFileAttributesW(target.c_str(), attributes);
    if (!replaced) Throw(error);
  }
};

DraftFile::DraftFile(const fs::path& path, bool replace_read_only) : system_(std::make_unique<System>()) {
  system_->target = Extended(Followed(path));
  const auto attributes = AttributesOf(system_->target);
  if (attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw RefusedTarget{Refused::IsFolder};
  const bool read_only = attributes && (*attributes & FILE_ATTRIBUTE_READONLY) != 0;
  if (read_only && !replace_read_only) throw RefusedTarget{Refused::IsReadOnly};
  if (attributes && !read_only) {
    DraftHandle file = OpenTarget(system_->target);
    if (GetFileType(file.Value()) != FILE_TYPE_DISK) {
      system_->file = std::move(file);
      return;
    }
  }
  system_->CreateDraft();
}

DraftFile::~DraftFile() {
  system_->file.Close();
  if (!system_->draft.empty()) DeleteFileW(system_->draft.c_str());
}

void DraftFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto most = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1 << 20));
    if (!WriteFile(system_->file.Value(), bytes.data(), most, &count, nullptr)) ThrowLastError();
    bytes.remove_prefix(count);
  }
}

void DraftFile::Publish() {
  system_->file.Close();
  if (system_->draft.empty()) return;
  if (const auto attributes = AttributesOf(system_->target)) {
    system_->Replace(*attributes);
  } else if (!MoveFileExW(system_->draft.c_str(), system_->target.c_str(), 0)) {
    ThrowLastError();
  }
  system_->interruption.reset();
  system_->draft.clear();
}

}  // namespace tool

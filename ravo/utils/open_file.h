#pragma once

#include <ravo/platform/files.h>

#include <string_view>

namespace ravo::utils {

/// A file that is open for as long as this object lives.
class OpenFile {
 public:
  OpenFile(std::u16string_view name, platform::FilePurpose purpose)
      : files_(platform::Files()), handle_(files_.Open(name, purpose)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (IsOpen()) files_.Close(handle_);
  }

  [[nodiscard]] bool IsOpen() const noexcept { return handle_ != kNoFile; }
  [[nodiscard]] FileHandle Handle() const noexcept { return handle_; }

  /// Closes the file before its time; false where what was written to it is not safe.
  bool Close() {
    const FileHandle handle = handle_;
    handle_ = kNoFile;
    return files_.Close(handle);
  }

 private:
  const platform::FileCalls& files_;
  FileHandle handle_;
};

}  // namespace ravo::utils

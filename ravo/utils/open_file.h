#pragma once

#include <ravo/platform/files.h>

#include <string_view>

namespace ravo::utils {

/// Owns an open file and closes it on destruction.
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

  /// Closes the file early; returns false if the system cannot confirm that all data was written.
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

#pragma once

#include <ravo/platform/file_handle.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ravo::platform {

/// A file that cannot seek. Keeps the bytes read so far in memory, so that a reader can go back to any of
/// them.
class KeptInput {
 public:
  explicit KeptInput(FileHandle file) noexcept : file_(file) {}

  /// Reads at most `to.size()` bytes at `position`, as soon as there is one; 0 at the end.
  [[nodiscard]] std::size_t Read(std::int64_t position, std::span<std::byte> to);
  /// Waits for the end and returns the number of bytes up to it.
  [[nodiscard]] std::int64_t Size();

 private:
  bool ReadMore();

  FileHandle file_;
  std::vector<std::byte> bytes_;
  std::size_t used_ = 0;
  bool ended_ = false;
};

}  // namespace ravo::platform

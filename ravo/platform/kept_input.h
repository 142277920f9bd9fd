#pragma once

#include <ravo/platform/file_handle.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ravo::platform {

/// The bytes of a file that cannot seek, kept in memory as they are read, so that a reader can go back to any
/// of them.
class KeptInput {
 public:
  explicit KeptInput(FileHandle file) noexcept : file_(file) {}

  /// Reads at most `to.size()` bytes at `position`, once one of them is there; 0 at the end.
  [[nodiscard]] std::size_t Read(std::int64_t position, std::span<std::byte> to);
  /// The number of bytes up to the end, which is waited for.
  [[nodiscard]] std::int64_t Size();

 private:
  bool ReadMore();

  FileHandle file_;
  std::vector<std::byte> bytes_;
  std::size_t used_ = 0;
  bool ended_ = false;
};

}  // namespace ravo::platform

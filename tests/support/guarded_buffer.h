#pragma once

#include <cstddef>
#include <span>

namespace ravo::test {

/// A copy of bytes that ends directly before an inaccessible page: reading past the end ends the test
/// program at once, on every target.
class GuardedBuffer {
 public:
  explicit GuardedBuffer(std::span<const std::byte> bytes);
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;
  ~GuardedBuffer();

  [[nodiscard]] std::span<std::byte> Bytes() const noexcept { return bytes_; }

 private:
  void* pages_;
  std::size_t reserved_;
  std::span<std::byte> bytes_;
};

}  // namespace ravo::test

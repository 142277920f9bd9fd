#pragma once

#include <cstdint>

/// Makes memory run out at a chosen moment, for the whole program: any call of `malloc`, `calloc` and
/// `realloc` in this program's own code, `operator new` included, can be the one that fails.
namespace ravo::test {

/// Until this object is destroyed, `requests` allocations succeed and all further ones fail.
class FailingMemory {
 public:
  explicit FailingMemory(std::int64_t requests) noexcept;
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;
  ~FailingMemory();

  /// Returns whether an allocation has failed.
  [[nodiscard]] bool HasFailed() const noexcept;

  /// Returns the number of allocations that would still succeed.
  [[nodiscard]] std::int64_t Left() const noexcept;
};

/// Returns the number of blocks that are allocated and not freed.
[[nodiscard]] std::int64_t LiveBlocks() noexcept;

}  // namespace ravo::test

#pragma once

#include <cstdint>

/// Memory that runs out at a chosen moment, for the whole program: every call of `malloc`, `calloc` and
/// `realloc` that this program's own code makes, `operator new` included, can be the one that fails.
namespace ravo::test {

/// From now on `requests` requests succeed and all further ones fail, until the object goes.
class FailingMemory {
 public:
  explicit FailingMemory(std::int64_t requests) noexcept;
  FailingMemory(const FailingMemory&) = delete;
  FailingMemory& operator=(const FailingMemory&) = delete;
  ~FailingMemory();

  /// Whether a request has failed.
  [[nodiscard]] bool HasFailed() const noexcept;

  /// How many requests more would succeed.
  [[nodiscard]] std::int64_t Left() const noexcept;
};

/// Blocks that were taken and not given back.
[[nodiscard]] std::int64_t LiveBlocks() noexcept;

}  // namespace ravo::test

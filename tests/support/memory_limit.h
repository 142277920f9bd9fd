#pragma once

#include <cstddef>

namespace ravo::test {

/// Lets this process have no more than so many bytes of memory from now on; for a child process of a test.
/// False where the system or the build cannot do that.
[[nodiscard]] bool LimitMemory(std::size_t bytes) noexcept;

}  // namespace ravo::test

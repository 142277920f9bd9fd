#pragma once

#include <cstddef>

namespace ravo::test {

/// Whether system and build can do what follows. A sanitizer reserves more than any limit leaves.
#if defined(_WIN32) || defined(RAVO_SANITIZED)
inline constexpr bool kMemoryCanBeLimited = false;
#else
inline constexpr bool kMemoryCanBeLimited = true;
#endif

/// Lets this process have no more than so many bytes of memory from now on; for a child process of a test.
/// False where the system or the build cannot do that.
[[nodiscard]] bool LimitMemory(std::size_t bytes) noexcept;

}  // namespace ravo::test

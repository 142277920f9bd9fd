#pragma once

#include <cstddef>

namespace ravo::test {

/// True if system and build support `LimitMemory`. A sanitizer reserves more than any limit leaves.
#if defined(_WIN32) || defined(RAVO_SANITIZED)
inline constexpr bool kMemoryCanBeLimited = false;
#else
inline constexpr bool kMemoryCanBeLimited = true;
#endif

/// Limits the memory of this process from now on, in bytes; false if the system or the build cannot do that.
/// For child processes of a test.
[[nodiscard]] bool LimitMemory(std::size_t bytes) noexcept;

}  // namespace ravo::test

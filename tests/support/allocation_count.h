#pragma once

#include <cstddef>

namespace ravo::test {

/// Whether this build counts. A sanitizer brings its own allocator, which must stay in its place.
#ifdef RAVO_SANITIZED
inline constexpr bool kAllocationsCounted = false;
#else
inline constexpr bool kAllocationsCounted = true;
#endif

/// How often the program has called the global `operator new` so far, in all threads; 0 where nothing is
/// counted. The difference of two answers says what the code between them allocated.
[[nodiscard]] std::size_t AllocationCount() noexcept;

}  // namespace ravo::test

#pragma once

#include <cstddef>

namespace ravo::test {

/// True if this build counts. A sanitizer brings its own allocator, which must not be replaced.
#ifdef RAVO_SANITIZED
inline constexpr bool kAllocationsCounted = false;
#else
inline constexpr bool kAllocationsCounted = true;
#endif

/// Returns the number of calls of the global `operator new` so far, in all threads; 0 if this build does not
/// count.
///
/// The difference of two results is what the code between them allocated.
[[nodiscard]] std::size_t AllocationCount() noexcept;

}  // namespace ravo::test

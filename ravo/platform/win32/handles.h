#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <windows.h>

/// What files of the library's own terms are in those of the system calls.
namespace ravo::platform {

[[nodiscard]] inline HANDLE HandleOf(std::intptr_t file) noexcept { return reinterpret_cast<HANDLE>(file); }

/// One call moves at most so many bytes; more are for the next one.
[[nodiscard]] inline DWORD Portion(std::size_t bytes) noexcept {
  return static_cast<DWORD>(std::min<std::size_t>(bytes, 1U << 30));
}

}  // namespace ravo::platform

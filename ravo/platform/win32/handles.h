#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <windows.h>

/// File handles and sizes in the types of system calls.
namespace ravo::platform {

[[nodiscard]] inline HANDLE HandleOf(std::intptr_t file) noexcept { return reinterpret_cast<HANDLE>(file); }

/// Returns the number of bytes that one call moves; the rest is for the next one.
[[nodiscard]] inline DWORD Portion(std::size_t bytes) noexcept {
  return static_cast<DWORD>(std::min<std::size_t>(bytes, 1U << 30));
}

}  // namespace ravo::platform

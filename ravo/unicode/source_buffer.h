#pragma once

#include <cstddef>
#include <cstdint>

/// The buffer that a reader owns while it reads from a stream.
namespace ravo::unicode {

inline constexpr std::uint32_t kSourceBufferSize = 4096;

[[nodiscard]] inline const std::uint8_t* NewSourceBuffer() { return new std::uint8_t[kSourceBufferSize]; }
inline void DeleteSourceBuffer(const std::uint8_t* buffer) noexcept { delete[] buffer; }

/// Returns a buffer of the reader's own for writing; a caller's buffer is read-only.
[[nodiscard]] inline std::uint8_t* Writable(const std::uint8_t* own_buffer) noexcept {
  return const_cast<std::uint8_t*>(own_buffer);
}

}  // namespace ravo::unicode

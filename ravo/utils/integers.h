#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>

/// Bits and integers. Bit 0 is the least significant one; a bit index counts modulo 32.
namespace ravo::DIUtils {

/// Returns the number of bits that are set.
[[nodiscard]] RAVO_API std::uint32_t CountBitsSet(std::uint32_t value) noexcept;

/// Returns the index of the highest set bit; 0xFFFFFFFF for 0.
[[nodiscard]] RAVO_API std::uint32_t LeftMostBit(std::uint32_t value) noexcept;
/// Returns the index of the lowest set bit; 0xFFFFFFFF for 0.
[[nodiscard]] RAVO_API std::uint32_t RightMostBit(std::uint32_t value) noexcept;

/// Returns `value` with one bit set.
[[nodiscard]] RAVO_API std::uint32_t BitSet(std::uint32_t value, std::uint32_t bit) noexcept;
/// Returns `value` with one bit cleared.
[[nodiscard]] RAVO_API std::uint32_t BitClear(std::uint32_t value, std::uint32_t bit) noexcept;
/// Returns `value` with one bit set or cleared, as `set` says.
[[nodiscard]] RAVO_API std::uint32_t BitSetTo(std::uint32_t value, std::uint32_t bit, bool set) noexcept;
/// Returns whether a bit is set.
[[nodiscard]] RAVO_API bool BitTest(std::uint32_t value, std::uint32_t bit) noexcept;

/// Returns the greatest common divisor: a for (a, 0), 0 for (0, 0).
[[nodiscard]] RAVO_API std::uint32_t GCD(std::uint32_t a, std::uint32_t b) noexcept;

/// Returns the smallest of two or three values.
[[nodiscard]] RAVO_API std::int32_t Min(std::int32_t a, std::int32_t b) noexcept;
[[nodiscard]] RAVO_API std::uint32_t Min(std::uint32_t a, std::uint32_t b) noexcept;
[[nodiscard]] RAVO_API std::int64_t Min(std::int64_t a, std::int64_t b) noexcept;
[[nodiscard]] RAVO_API std::uint32_t Min(std::uint32_t a, std::uint32_t b, std::uint32_t c) noexcept;
[[nodiscard]] RAVO_API std::int64_t Min(std::int64_t a, std::int64_t b, std::int64_t c) noexcept;
/// Returns the smallest of three values.
[[nodiscard]] RAVO_API std::int32_t Min3(std::int32_t a, std::int32_t b, std::int32_t c) noexcept;

/// Returns the largest of two or three values.
[[nodiscard]] RAVO_API std::int32_t Max(std::int32_t a, std::int32_t b) noexcept;
[[nodiscard]] RAVO_API std::uint32_t Max(std::uint32_t a, std::uint32_t b) noexcept;
[[nodiscard]] RAVO_API std::int64_t Max(std::int64_t a, std::int64_t b) noexcept;
[[nodiscard]] RAVO_API std::uint32_t Max(std::uint32_t a, std::uint32_t b, std::uint32_t c) noexcept;
[[nodiscard]] RAVO_API std::int64_t Max(std::int64_t a, std::int64_t b, std::int64_t c) noexcept;
/// Returns the largest of three values.
[[nodiscard]] RAVO_API std::int32_t Max3(std::int32_t a, std::int32_t b, std::int32_t c) noexcept;

}  // namespace ravo::DIUtils

#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The CRC-32 of zip and Ethernet (reflected polynomial 0xEDB88320).
///
/// To checksum data in blocks, start with 0xFFFFFFFF, pass the register from one `Update...` to the next, and
/// complement the last one. UTF-16 texts count as their little-endian bytes; they throw `OverflowError` or
/// `RangeError` from 2^30 units on.
namespace ravo::DIUtils {

/// Returns the register after `count` bytes, not complemented.
[[nodiscard]] RAVO_API std::uint32_t UpdateCrc32OfBuf(std::uint32_t crc, const void* bytes,
                                                      std::size_t count) noexcept;
/// Returns the register after the bytes of 8-bit text.
[[nodiscard]] RAVO_API std::uint32_t UpdateCrc32OfStrA(std::uint32_t crc, std::string_view text) noexcept;
/// Returns the register after the little-endian bytes of UTF-16 text.
[[nodiscard]] RAVO_API std::uint32_t UpdateCrc32OfStrW(std::uint32_t crc, std::u16string_view text);

/// Returns the checksum of `count` bytes: 0 for none, 0xCBF43926 for "123456789".
[[nodiscard]] RAVO_API std::uint32_t Crc32OfBuf(const void* bytes, std::size_t count) noexcept;
/// Returns the checksum of 8-bit text.
[[nodiscard]] RAVO_API std::uint32_t Crc32OfStrA(std::string_view text) noexcept;
/// Returns the checksum of the little-endian bytes of UTF-16 text.
[[nodiscard]] RAVO_API std::uint32_t Crc32OfStrW(std::u16string_view text);

}  // namespace ravo::DIUtils

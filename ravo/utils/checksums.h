#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The CRC-32 of zip and Ethernet (reflected polynomial 0xEDB88320). To checksum data in pieces, begin with
/// 0xFFFFFFFF, hand the register from one `Update...` to the next, and complement the last. Texts in UTF-16
/// count as their little-endian bytes; from 2^30 units on they raise `OverflowError` or `RangeError`.
namespace ravo::DIUtils {

/// The register behind the bytes, not complemented.
[[nodiscard]] RAVO_API std::uint32_t UpdateCrc32OfBuf(std::uint32_t crc, const void* bytes,
                                                      std::size_t count) noexcept;
/// The same for 8-bit text.
[[nodiscard]] RAVO_API std::uint32_t UpdateCrc32OfStrA(std::uint32_t crc, std::string_view text) noexcept;
/// The same for the little-endian bytes of UTF-16 text.
[[nodiscard]] RAVO_API std::uint32_t UpdateCrc32OfStrW(std::uint32_t crc, std::u16string_view text);

/// The checksum: 0 for none, 0xCBF43926 for the bytes of "123456789".
[[nodiscard]] RAVO_API std::uint32_t Crc32OfBuf(const void* bytes, std::size_t count) noexcept;
/// The checksum of 8-bit text.
[[nodiscard]] RAVO_API std::uint32_t Crc32OfStrA(std::string_view text) noexcept;
/// The checksum of the little-endian bytes of UTF-16 text.
[[nodiscard]] RAVO_API std::uint32_t Crc32OfStrW(std::u16string_view text);

}  // namespace ravo::DIUtils

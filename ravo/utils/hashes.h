#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Bob Jenkins' 32-bit hash of 1996 (lookup2) for hash tables. `initial` is any number; each value selects an
/// independent hash function.
namespace ravo::DIUtils {

/// Returns the hash of `count` bytes.
[[nodiscard]] RAVO_API std::uint32_t HashBuf(const void* bytes, std::size_t count,
                                             std::uint32_t initial) noexcept;

/// Returns the hash of `count` bytes in upper case by `ANSI_UPPER_CHAR_TABLE`.
[[nodiscard]] RAVO_API std::uint32_t HashBufIA(const void* bytes, std::size_t count,
                                               std::uint32_t initial) noexcept;

/// Returns the hash of `count` UTF-16 units, each folded by `CharToCaseFoldW`. It hashes and counts units, so
/// it differs from `HashBuf` of the folded bytes.
[[nodiscard]] RAVO_API std::uint32_t HashBufIW(const char16_t* units, std::size_t count,
                                               std::uint32_t initial) noexcept;

/// Returns the hash of the bytes of 8-bit text.
[[nodiscard]] RAVO_API std::uint32_t HashStrA(std::string_view text, std::uint32_t initial) noexcept;
/// Returns the hash of the little-endian bytes of UTF-16 text. Throws `OverflowError` or `RangeError` from
/// 2^30 units on.
[[nodiscard]] RAVO_API std::uint32_t HashStrW(std::u16string_view text, std::uint32_t initial);
[[nodiscard]] RAVO_API std::uint32_t HashStrIA(std::string_view text, std::uint32_t initial) noexcept;
[[nodiscard]] RAVO_API std::uint32_t HashStrIW(std::u16string_view text, std::uint32_t initial) noexcept;

}  // namespace ravo::DIUtils

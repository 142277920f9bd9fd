#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>

/// Natural order: runs of decimal digits compare by value, "a9" before "a10". Digits are 0 to 9 in 8-bit
/// text, the decimal digits of every script (`CharIsDigitW`) in UTF-16.
///
/// The result is negative, zero or positive: the difference of two characters or of two lengths, or 1 or -1
/// if one number is longer. The comparison starts at the first difference and skips zeros from there. So
/// leading zeros only break ties, and a zero inside a number is ignored: "105" comes before "15". Such
/// numbers make the order intransitive; a sorting algorithm must tolerate that.
namespace ravo::DIUtils {

/// Compares two texts: returns a negative, zero or positive number.
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNum(std::u16string_view left,
                                                 std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumW(std::u16string_view left,
                                                  std::u16string_view right) noexcept;
/// Compares two texts after case folding.
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumI(std::u16string_view left,
                                                  std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumIA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumIW(std::u16string_view left,
                                                   std::u16string_view right) noexcept;

/// Compares two buffers, each a pointer, which may be null if the buffer is empty, and a length in
/// characters.
[[nodiscard]] RAVO_API std::ptrdiff_t BufCompNumW(const char16_t* left, std::size_t left_length,
                                                  const char16_t* right, std::size_t right_length) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t BufCompNumIW(const char16_t* left, std::size_t left_length,
                                                   const char16_t* right, std::size_t right_length) noexcept;

}  // namespace ravo::DIUtils

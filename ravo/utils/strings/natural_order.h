#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>

/// Order in which runs of decimal digits compare by value: "a9" before "a10". The result is negative, zero or
/// positive: the difference of two characters or of two lengths, 1 or -1 where one number is longer. Digits
/// of 8-bit text are 0 to 9, those of UTF-16 text the decimal digits of every script (`CharIsDigitW`).
///
/// The comparison begins at the first difference and skips zeros from there, so that zeros in front of a
/// number only break ties and a zero inside one is lost: "105" comes before "15". Where such numbers meet,
/// the order has circles; a sorting algorithm must bear that.
namespace ravo::DIUtils {

/// How two texts compare: negative, zero or positive.
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNum(std::u16string_view left,
                                                 std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumW(std::u16string_view left,
                                                  std::u16string_view right) noexcept;
/// The same after case folding.
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumI(std::u16string_view left,
                                                  std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumIA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompNumIW(std::u16string_view left,
                                                   std::u16string_view right) noexcept;

/// The same of two buffers: a pointer (null for none) and a length in characters each.
[[nodiscard]] RAVO_API std::ptrdiff_t BufCompNumW(const char16_t* left, std::size_t left_length,
                                                  const char16_t* right, std::size_t right_length) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t BufCompNumIW(const char16_t* left, std::size_t left_length,
                                                   const char16_t* right, std::size_t right_length) noexcept;

}  // namespace ravo::DIUtils

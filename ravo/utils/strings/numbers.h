#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Conversion of integers from and to text. An integer is leading blanks, an optional sign, then decimal
/// digits, or "$", "x" or "0x" and hexadecimal digits, all ASCII. Hexadecimal digits may fill the type:
/// $FFFFFFFF is -1 in 32 bits. Trailing characters and values out of range are errors.
namespace ravo::DIUtils {

/// Returns the value of a text and sets `error` to 0. If the text is not an integer, returns 0 and sets
/// `error` to the 1-based position of the first wrong character, one past the end if digits are missing.
[[nodiscard]] RAVO_API std::int32_t ValInt(std::u16string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValInt(const char16_t* buffer, std::size_t length,
                                           std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntA(std::string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntA(const char* buffer, std::size_t length,
                                            std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntW(std::u16string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntW(const char16_t* buffer, std::size_t length,
                                            std::size_t& error) noexcept;
/// Returns the 64-bit value of a text, with `error` as above.
[[nodiscard]] RAVO_API std::int64_t ValInt64A(std::string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int64_t ValInt64A(const char* buffer, std::size_t length,
                                              std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int64_t ValInt64W(std::u16string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int64_t ValInt64W(const char16_t* buffer, std::size_t length,
                                              std::size_t& error) noexcept;

/// Returns whether the text is an integer, and stores its value in `value`, which is otherwise unchanged.
[[nodiscard]] RAVO_API bool TryStrToIntW(std::u16string_view text, std::int32_t& value) noexcept;
/// Returns whether the text is a 64-bit integer, and stores its value in `value`, which is otherwise
/// unchanged.
[[nodiscard]] RAVO_API bool TryStrToInt64W(std::u16string_view text, std::int64_t& value) noexcept;

/// Returns the value of a text, or `default_value` if it is not an integer.
[[nodiscard]] RAVO_API std::int32_t StrToIntDefW(std::u16string_view text,
                                                 std::int32_t default_value) noexcept;
/// Returns the 64-bit value of a text, or `default_value` if it is not an integer.
[[nodiscard]] RAVO_API std::int64_t StrToInt64DefW(std::u16string_view text,
                                                   std::int64_t default_value) noexcept;

/// Returns the value of a text that consists of hexadecimal digits of either case; values up to FFFFFFFF are
/// the bits of the result. Returns `default_value` for any other text, also an empty one.
[[nodiscard]] RAVO_API std::int32_t HexToIntA(std::string_view text,
                                              std::int32_t default_value = -1) noexcept;
[[nodiscard]] RAVO_API std::int32_t HexToIntW(std::u16string_view text,
                                              std::int32_t default_value = -1) noexcept;
[[nodiscard]] RAVO_API std::int32_t BufHexToIntA(const char* buffer, std::size_t length,
                                                 std::int32_t default_value = -1) noexcept;
[[nodiscard]] RAVO_API std::int32_t BufHexToIntW(const char16_t* buffer, std::size_t length,
                                                 std::int32_t default_value = -1) noexcept;

/// Returns 0 to 15 for "0" to "9", "A" to "F" and "a" to "f"; -1 for any other character.
[[nodiscard]] RAVO_API int HexCodePointToInt(char32_t c) noexcept;

/// Returns the decimal digits of `value`, with a leading "-" if it is negative.
[[nodiscard]] RAVO_API std::string IntToStrA(std::int32_t value);
[[nodiscard]] RAVO_API std::string IntToStrA(std::int64_t value);
[[nodiscard]] RAVO_API std::u16string IntToStrW(std::int32_t value);
[[nodiscard]] RAVO_API std::u16string IntToStrW(std::int64_t value);

/// Returns the bits of `value` in upper-case hexadecimal digits, zero-padded to at least `digits`. -1 is
/// FFFFFFFF in 32 bits.
[[nodiscard]] RAVO_API std::string IntToHexA(std::int32_t value, int digits = 1);
[[nodiscard]] RAVO_API std::string IntToHexA(std::int64_t value, int digits = 1);
[[nodiscard]] RAVO_API std::u16string IntToHexW(std::int32_t value, int digits = 1);
[[nodiscard]] RAVO_API std::u16string IntToHexW(std::int64_t value, int digits = 1);

}  // namespace ravo::DIUtils

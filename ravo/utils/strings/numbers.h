#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Integers from text and to text. An integer is written as blanks, an optional sign, then decimal digits, or
/// hexadecimal digits behind "$", "x" or "0x"; digits are those of ASCII. Hexadecimal digits may fill the
/// type: $FFFFFFFF is -1 where 32 bits are read. Nothing may follow, and a value out of range is wrong.
namespace ravo::DIUtils {

/// The value, and in `error` 0, or the 1-based position of the character at which the text turns out wrong
/// (one behind its end where digits are missing); the value is 0 then.
[[nodiscard]] RAVO_API std::int32_t ValInt(std::u16string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValInt(const char16_t* buffer, std::size_t length,
                                           std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntA(std::string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntA(const char* buffer, std::size_t length,
                                            std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntW(std::u16string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int32_t ValIntW(const char16_t* buffer, std::size_t length,
                                            std::size_t& error) noexcept;
/// The same in 64 bits.
[[nodiscard]] RAVO_API std::int64_t ValInt64A(std::string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int64_t ValInt64A(const char* buffer, std::size_t length,
                                              std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int64_t ValInt64W(std::u16string_view text, std::size_t& error) noexcept;
[[nodiscard]] RAVO_API std::int64_t ValInt64W(const char16_t* buffer, std::size_t length,
                                              std::size_t& error) noexcept;

/// Whether the text is an integer; `value` is it then, and stays as it was otherwise.
[[nodiscard]] RAVO_API bool TryStrToIntW(std::u16string_view text, std::int32_t& value) noexcept;
/// The same in 64 bits.
[[nodiscard]] RAVO_API bool TryStrToInt64W(std::u16string_view text, std::int64_t& value) noexcept;

/// The value, or `default_value` where the text is no integer.
[[nodiscard]] RAVO_API std::int32_t StrToIntDefW(std::u16string_view text,
                                                 std::int32_t default_value) noexcept;
/// The same in 64 bits.
[[nodiscard]] RAVO_API std::int64_t StrToInt64DefW(std::u16string_view text,
                                                   std::int64_t default_value) noexcept;

/// The value of a text of hexadecimal digits alone, of either case; values up to FFFFFFFF are the bits of the
/// result. `default_value` for any other text, an empty one too.
[[nodiscard]] RAVO_API std::int32_t HexToIntA(std::string_view text,
                                              std::int32_t default_value = -1) noexcept;
[[nodiscard]] RAVO_API std::int32_t HexToIntW(std::u16string_view text,
                                              std::int32_t default_value = -1) noexcept;
[[nodiscard]] RAVO_API std::int32_t BufHexToIntA(const char* buffer, std::size_t length,
                                                 std::int32_t default_value = -1) noexcept;
[[nodiscard]] RAVO_API std::int32_t BufHexToIntW(const char16_t* buffer, std::size_t length,
                                                 std::int32_t default_value = -1) noexcept;

/// 0 to 15 for "0" to "9", "A" to "F" and "a" to "f"; -1 for any other character.
[[nodiscard]] RAVO_API int HexCodePointToInt(char32_t c) noexcept;

/// Decimal digits, "-" in front of negative values.
[[nodiscard]] RAVO_API std::string IntToStrA(std::int32_t value);
[[nodiscard]] RAVO_API std::string IntToStrA(std::int64_t value);
[[nodiscard]] RAVO_API std::u16string IntToStrW(std::int32_t value);
[[nodiscard]] RAVO_API std::u16string IntToStrW(std::int64_t value);

/// Upper-case hexadecimal digits of the bits of the value, filled up with zeros to at least `digits`. -1
/// gives FFFFFFFF in 32 bits.
[[nodiscard]] RAVO_API std::string IntToHexA(std::int32_t value, int digits = 1);
[[nodiscard]] RAVO_API std::string IntToHexA(std::int64_t value, int digits = 1);
[[nodiscard]] RAVO_API std::u16string IntToHexW(std::int32_t value, int digits = 1);
[[nodiscard]] RAVO_API std::u16string IntToHexW(std::int64_t value, int digits = 1);

}  // namespace ravo::DIUtils

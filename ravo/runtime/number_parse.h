#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace ravo {

/// Reads a whole text as a signed 32-bit integer: blanks (U+0020) in front, an optional sign, then decimal
/// digits, or hexadecimal digits behind "$", "x" or "0x" (either case). Hexadecimal values up to FFFFFFFF are
/// taken as the bits of the result, which a "-" then negates within 32 bits. Nothing may follow. No value
/// where the text is no such integer or is out of range.
[[nodiscard]] RAVO_API std::optional<std::int32_t> TryParseInteger(std::u16string_view text) noexcept;

/// The same, raising `ConvertError` where there is no value.
[[nodiscard]] RAVO_API std::int32_t ParseInteger(std::u16string_view text);

/// Reads a whole text as a float: blanks (U+0020) at both ends, an optional sign, decimal digits with at most
/// one `decimal_separator` among them (at least one digit in all), optionally "E" or "e" with an optionally
/// signed exponent. The result is the nearest extended float, ties to even. No value for any other text and
/// for values beyond the largest finite one.
[[nodiscard]] RAVO_API std::optional<Extended> TryParseFloat(std::u16string_view text,
                                                             char16_t decimal_separator);

/// The same, raising `ConvertError` where there is no value.
[[nodiscard]] RAVO_API Extended ParseFloat(std::u16string_view text, char16_t decimal_separator);

}  // namespace ravo

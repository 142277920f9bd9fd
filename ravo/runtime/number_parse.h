#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace ravo {

/// Returns the value of a text that is a signed 32-bit integer as a whole, or no value.
///
/// Accepts leading blanks (U+0020), an optional sign, then decimal digits, or "$", "x" or "0x" (either case)
/// and hexadecimal digits. Trailing characters are not allowed. Hexadecimal values up to FFFFFFFF are the
/// bits of the result, which a "-" then negates modulo 2^32: "$FFFFFFFF" is -1, "-$FFFFFFFF" is 1.
[[nodiscard]] RAVO_API std::optional<std::int32_t> TryParseInteger(std::u16string_view text) noexcept;

/// Returns what `TryParseInteger` does. Throws `ConvertError` if there is no value.
[[nodiscard]] RAVO_API std::int32_t ParseInteger(std::u16string_view text);

/// Returns the extended float nearest to a text that is a number as a whole, ties to even, or no value.
///
/// Accepts blanks (U+0020) at both ends, an optional sign, decimal digits with at most one
/// `decimal_separator` and at least one digit, then optionally "E" or "e" with an optionally signed exponent.
/// There is no value past the largest finite one either.
[[nodiscard]] RAVO_API std::optional<Extended> TryParseFloat(std::u16string_view text,
                                                             char16_t decimal_separator);

/// Returns what `TryParseFloat` does. Throws `ConvertError` if there is no value.
[[nodiscard]] RAVO_API Extended ParseFloat(std::u16string_view text, char16_t decimal_separator);

}  // namespace ravo

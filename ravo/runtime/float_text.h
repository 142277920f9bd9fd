#pragma once

#include <ravo/runtime/decimal.h>
#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo {

/// The significant digits that floats are written with.
inline constexpr int kFloatDigits = 15;

/// The general float format: at most `digits` significant digits, halves rounded away from zero, without
/// trailing zeros. Plain notation from "0.00001" (four zeros behind the decimal point) up to that many digits
/// in front of it, scientific ("1E15", "1.5E-6") otherwise. "-" for negative values, "0" for both zeros.
[[nodiscard]] RAVO_API std::u16string GeneralText(const DecimalNumber& number, char16_t decimal_separator,
                                                  int digits = kFloatDigits);
/// The same of a float; an infinity reads "INF" or "-INF", what is no number "NAN".
[[nodiscard]] RAVO_API std::u16string GeneralText(Extended value, char16_t decimal_separator);

/// Every significant digit in plain notation, without trailing zeros; "-" for negative values, "0" for both
/// zeros.
[[nodiscard]] RAVO_API std::u16string ExactText(const DecimalNumber& number, char16_t decimal_separator);

/// The scientific format: exactly `digits` significant digits (one at least), one of them in front of the
/// decimal point, halves rounded away from zero, and an exponent of three digits or more with its sign:
/// "1.500E+000".
[[nodiscard]] RAVO_API std::u16string ScientificText(const DecimalNumber& number, int digits,
                                                     char16_t decimal_separator);

/// The fixed format: exactly `decimals` digits behind the decimal point (none for negative `decimals`), at
/// most 15 significant digits (zeros stand for those beyond), halves rounded away from zero, no thousands
/// separators. A value that rounds to zero has no sign.
[[nodiscard]] RAVO_API std::u16string FixedText(const DecimalNumber& number, int decimals,
                                                char16_t decimal_separator);

/// The number format: the fixed format with `thousands_separator` between groups of three digits.
[[nodiscard]] RAVO_API std::u16string NumberText(const DecimalNumber& number, int decimals,
                                                 char16_t decimal_separator,
                                                 std::u16string_view thousands_separator);

}  // namespace ravo

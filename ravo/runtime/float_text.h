#pragma once

#include <ravo/runtime/decimal.h>
#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo {

/// The maximum number of significant digits of a formatted float.
inline constexpr int kFloatDigits = 15;

/// Returns `number` in the general format: at most `digits` significant digits, halves rounded away from
/// zero, without trailing zeros.
///
/// Plain notation is used from "0.00001" (four zeros after the decimal point) up to `digits` digits before
/// it, scientific notation ("1E15", "1.5E-6") otherwise. Negative values begin with "-"; both zeros are "0".
[[nodiscard]] RAVO_API std::u16string GeneralText(const DecimalNumber& number, char16_t decimal_separator,
                                                  int digits = kFloatDigits);
/// Returns `value` in the general format. Infinities are "INF" and "-INF", NaN is "NAN".
[[nodiscard]] RAVO_API std::u16string GeneralText(Extended value, char16_t decimal_separator);

/// Returns every significant digit in plain notation, without trailing zeros. Negative values begin with "-";
/// both zeros are "0".
[[nodiscard]] RAVO_API std::u16string ExactText(const DecimalNumber& number, char16_t decimal_separator);

/// Returns `number` in the scientific format: exactly `digits` significant digits (at least one), one of them
/// before the decimal point, halves rounded away from zero. The exponent has a sign and at least three
/// digits: "1.500E+000".
[[nodiscard]] RAVO_API std::u16string ScientificText(const DecimalNumber& number, int digits,
                                                     char16_t decimal_separator);

/// Returns `number` in the fixed format: exactly `decimals` digits after the decimal point (none if
/// `decimals` is negative), halves rounded away from zero, without thousands separators.
///
/// At most 15 digits are significant; the digits past them are zeros. A value that rounds to zero has no
/// sign.
[[nodiscard]] RAVO_API std::u16string FixedText(const DecimalNumber& number, int decimals,
                                                char16_t decimal_separator);

/// Returns `number` in the fixed format, with `thousands_separator` between groups of three digits.
[[nodiscard]] RAVO_API std::u16string NumberText(const DecimalNumber& number, int decimals,
                                                 char16_t decimal_separator,
                                                 std::u16string_view thousands_separator);

}  // namespace ravo

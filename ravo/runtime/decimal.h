#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>

#include <cstdint>
#include <string>

namespace ravo {

/// An exact decimal number, 0.d1d2d3... times 10^`point`. Neither the first nor the last digit is zero. Zero
/// has no digits and `point` 0, and keeps its sign.
struct DecimalNumber {
  bool negative = false;
  std::string digits;
  int point = 0;
};

/// Returns the exact decimal value of a float, independent of the processor's precision and rounding mode.
///
/// Throws `FloatError` for infinities and NaN.
[[nodiscard]] RAVO_API DecimalNumber ToDecimal(Extended value);

/// Returns `value` / 10^`decimals`, exactly.
[[nodiscard]] RAVO_API DecimalNumber ToDecimal(std::int64_t value, int decimals);

/// Returns `number` rounded to at most `digits` significant digits, halves away from zero; zero if `digits`
/// is not positive.
[[nodiscard]] RAVO_API DecimalNumber RoundedToDigits(DecimalNumber number, int digits);

/// Returns `number` rounded to at most `places` digits after the decimal point, halves away from zero. A
/// negative `places` rounds to tens, hundreds and so on.
[[nodiscard]] RAVO_API DecimalNumber RoundedToPlaces(DecimalNumber number, int places);

/// Returns the extended float nearest to `number`, ties to even. Values that are too small become subnormal
/// or zero and keep their sign.
///
/// Throws `ConvertError` if `number` is past the largest finite value.
[[nodiscard]] RAVO_API Extended ToExtended(const DecimalNumber& number);

}  // namespace ravo

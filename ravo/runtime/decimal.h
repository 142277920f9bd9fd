#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>

#include <cstdint>
#include <string>

namespace ravo {

/// A decimal number: 0.d1d2d3... times ten to `point`, neither the first nor the last digit a zero; no digits
/// and point 0 for zero, which keeps its sign. Exact, so what is made of it is the same on every target.
struct DecimalNumber {
  bool negative = false;
  std::string digits;
  int point = 0;
};

/// All significant digits of `value`, exactly, whatever precision or rounding mode the processor is in.
/// Raises `FloatError` for infinities and what is no number.
[[nodiscard]] RAVO_API DecimalNumber ToDecimal(Extended value);

/// `value` / 10^`decimals`, exactly.
[[nodiscard]] RAVO_API DecimalNumber ToDecimal(std::int64_t value, int decimals);

/// `number` rounded, halves away from zero, to at most `digits` significant digits; zero where `digits` is
/// not positive.
[[nodiscard]] RAVO_API DecimalNumber RoundedToDigits(DecimalNumber number, int digits);

/// `number` rounded, halves away from zero, to at most `places` digits behind the decimal point; a negative
/// `places` rounds to tens, hundreds and so on.
[[nodiscard]] RAVO_API DecimalNumber RoundedToPlaces(DecimalNumber number, int places);

/// The extended float nearest to `number`, ties to even. Raises `ConvertError` beyond the largest finite
/// value; too small ones become denormal or zero, with the sign of `number`.
[[nodiscard]] RAVO_API Extended ToExtended(const DecimalNumber& number);

}  // namespace ravo

#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>

#include <cstdint>
#include <string>

namespace ravo {

/// A decimal number: 0.d1d2d3... times ten to `point`, d1 not zero; no digits for zero. Exact, so what is
/// made of it is the same on every target.
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

/// `number` rounded, halves away from zero, to at most `digits` significant digits.
[[nodiscard]] RAVO_API DecimalNumber RoundedToDigits(DecimalNumber number, int digits);

/// `number` rounded, halves away from zero, to at most `places` digits behind the decimal point.
[[nodiscard]] RAVO_API DecimalNumber RoundedToPlaces(DecimalNumber number, int places);

/// The extended float nearest to `number`, ties to even. Raises `ConvertError` beyond the largest finite
/// value; too small ones become denormal or zero.
[[nodiscard]] RAVO_API Extended ToExtended(const DecimalNumber& number);

}  // namespace ravo

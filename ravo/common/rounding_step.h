#pragma once

#include <ravo/runtime/currency.h>
#include <ravo/runtime/wide_multiply.h>

#include <array>
#include <cstdint>
#include <limits>

/// Rounding of a stored amount to multiples of a unit, in integers.
///
/// It equals the arithmetic of the 80-bit format as long as raw x 10^(decimals + 4) fits into 63 bits. Then
/// that product is exact in a 64-bit mantissa. Rounding up and down divide it by 10^4, which leaves the
/// integer raw x 10^decimals. Rounding halves divides it by 10^8: whole quotients are exact, and others have
/// at most four decimal places and are below 2^37, so that their error (below 2^-27) cannot move the fraction
/// when it is rounded to four places. The way back, units / scale x 10^8, is an integer below 2^50 with an
/// error below 2^-12.
namespace ravo::detail {

/// One way of rounding: all of them are one division, of the amount plus nearly a unit (up), plus nothing
/// (down), or plus half a unit.
struct RoundingStep {
  std::uint64_t unit;        ///< in ten-thousandths
  std::uint64_t bias;        ///< added before the division
  std::uint64_t reciprocal;  ///< 2^64 / unit, rounded up
  std::uint64_t most;        ///< the largest magnitude that the integer form covers
};

/// `most_units` bounds the result in units where the plain form wraps beyond it.
consteval RoundingStep MakeRoundingStep(std::uint64_t unit, std::uint64_t bias, std::uint64_t most_units) {
  const std::uint64_t exact = std::numeric_limits<std::int64_t>::max() / (100'000'000 / unit);
  const std::uint64_t in_range = most_units < exact / unit ? most_units * unit : exact;
  return {unit, bias, std::numeric_limits<std::uint64_t>::max() / unit + 1, in_range};
}

/// False, and the amount untouched, where the magnitude is beyond what the step covers. The quotient by
/// multiplication is exact: (magnitude + bias) x unit stays below 2^64.
[[nodiscard]] constexpr bool TryRound(Currency& value, const RoundingStep& step) noexcept {
  // All ones or all zeros: a sign applied without a branch, for signs of amounts cannot be foreseen.
  const auto sign = static_cast<std::uint64_t>(value.raw >> 63);
  const std::uint64_t magnitude = (static_cast<std::uint64_t>(value.raw) ^ sign) - sign;
  if (magnitude > step.most) return false;
  const std::uint64_t units = MultiplyWide(magnitude + step.bias, step.reciprocal).high;
  value.raw = static_cast<std::int64_t>(((units * step.unit) ^ sign) - sign);
  return true;
}

}  // namespace ravo::detail

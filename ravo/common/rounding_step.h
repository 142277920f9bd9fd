#pragma once

#include <ravo/runtime/currency.h>
#include <ravo/runtime/wide_multiply.h>

#include <array>
#include <cstdint>
#include <limits>

/// Rounding of an amount to multiples of a unit, in integers.
///
/// The result equals that of the 80-bit format as long as raw x 10^(decimals + 4) fits 63 bits: that product
/// is then exact in a 64-bit mantissa. Rounding up and down divides it by 10^4, which leaves the integer raw
/// x 10^decimals. Rounding halves divides it by 10^8: whole quotients are exact, and the others have at most
/// four decimal places and are below 2^37, so their error (below 2^-27) cannot change the fraction rounded to
/// four places. The way back, units / scale x 10^8, is an integer below 2^50 with an error below 2^-12.
namespace ravo::detail {

/// One rounding rule. Each is a single division of the amount plus a bias: nearly a unit (up), nothing (down)
/// or half a unit.
struct RoundingStep {
  std::uint64_t unit;        ///< in ten-thousandths
  std::uint64_t bias;        ///< added before the division
  std::uint64_t reciprocal;  ///< 2^64 / unit, rounded up
  std::uint64_t most;        ///< the largest magnitude that the integer form covers
};

/// `most_units` is the largest result, in units, that the reference does not wrap.
consteval RoundingStep MakeRoundingStep(std::uint64_t unit, std::uint64_t bias, std::uint64_t most_units) {
  const std::uint64_t exact = std::numeric_limits<std::int64_t>::max() / (100'000'000 / unit);
  const std::uint64_t in_range = most_units < exact / unit ? most_units * unit : exact;
  return {unit, bias, std::numeric_limits<std::uint64_t>::max() / unit + 1, in_range};
}

/// Rounds `value` and returns true; returns false and leaves it unchanged if its magnitude is past the limit
/// of the step. The quotient by multiplication is exact: (magnitude + bias) x unit stays below 2^64.
[[nodiscard]] constexpr bool TryRound(Currency& value, const RoundingStep& step) noexcept {
  // All ones or all zeros: applies the sign without a branch, because the signs of amounts are unpredictable.
  const auto sign = static_cast<std::uint64_t>(value.raw >> 63);
  const std::uint64_t magnitude = (static_cast<std::uint64_t>(value.raw) ^ sign) - sign;
  if (magnitude > step.most) return false;
  const std::uint64_t units = MultiplyWide(magnitude + step.bias, step.reciprocal).high;
  value.raw = static_cast<std::int64_t>(((units * step.unit) ^ sign) - sign);
  return true;
}

}  // namespace ravo::detail

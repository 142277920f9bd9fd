#pragma once

#include <ravo/runtime/big_natural.h>
#include <ravo/runtime/binary_float.h>
#include <ravo/runtime/decimal.h>

#include <cstdint>
#include <optional>

/// Rounding to the nearest value, ties to even, in integer arithmetic only. No value means overflow.
namespace ravo {

/// Returns the value of `format` nearest to `numerator` / `denominator` * 2^`exponent`. `denominator` must
/// not be zero.
[[nodiscard]] std::optional<BinaryFloat> NearestBinary(BigNatural numerator, BigNatural denominator,
                                                       int exponent, const BinaryFormat& format);

/// Returns the value of `format` nearest to `number`.
[[nodiscard]] std::optional<BinaryFloat> NearestBinary(const DecimalNumber& number,
                                                       const BinaryFormat& format);

/// Returns the value of type `Float` nearest to `number`.
template <class Float>
[[nodiscard]] std::optional<Float> NearestFloat(const DecimalNumber& number) {
  const std::optional<BinaryFloat> parts = NearestBinary(number, FloatBits<Float>::kFormat);
  return parts ? std::optional(FloatBits<Float>::Join(*parts)) : std::nullopt;
}

/// Returns the signed 64-bit integer nearest to `number`, or no value if it is out of range.
[[nodiscard]] std::optional<std::int64_t> NearestInteger(const DecimalNumber& number);

/// Returns the double nearest to `numerator` / `denominator`. `denominator` must not be zero.
[[nodiscard]] double NearestQuotient(std::uint64_t numerator, std::uint32_t denominator);

/// Returns the double nearest to the sum of two finite doubles.
[[nodiscard]] std::optional<double> NearestSum(double left, double right);

}  // namespace ravo

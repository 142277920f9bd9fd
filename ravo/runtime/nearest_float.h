#pragma once

#include <ravo/runtime/big_natural.h>
#include <ravo/runtime/binary_float.h>
#include <ravo/runtime/decimal.h>

#include <cstdint>
#include <optional>

/// Rounding to nearest, ties to even, in integers alone. No value means beyond the largest finite one.
namespace ravo {

/// The value of `format` nearest to `numerator` / `denominator` * 2^`exponent`. `denominator` is not zero.
[[nodiscard]] std::optional<BinaryFloat> NearestBinary(BigNatural numerator, BigNatural denominator,
                                                       int exponent, const BinaryFormat& format);

/// `number` as the nearest value of `format`.
[[nodiscard]] std::optional<BinaryFloat> NearestBinary(const DecimalNumber& number,
                                                       const BinaryFormat& format);

/// `number` as the nearest value of type `Float`.
template <class Float>
[[nodiscard]] std::optional<Float> NearestFloat(const DecimalNumber& number) {
  const std::optional<BinaryFloat> parts = NearestBinary(number, FloatBits<Float>::kFormat);
  return parts ? std::optional(FloatBits<Float>::Join(*parts)) : std::nullopt;
}

/// The signed 64-bit integer nearest to `number`; no value beyond its range.
[[nodiscard]] std::optional<std::int64_t> NearestInteger(const DecimalNumber& number);

/// The double nearest to `numerator` / `denominator`, which is not zero.
[[nodiscard]] double NearestQuotient(std::uint64_t numerator, std::uint32_t denominator);

/// The double nearest to the sum of two finite ones.
[[nodiscard]] std::optional<double> NearestSum(double left, double right);

}  // namespace ravo

#pragma once

#include <cstdint>

namespace ravo {

/// A number of the 80-bit floating-point format, computed in integers: a 64-bit mantissa, and every operation
/// rounded to nearest, ties to even. Results do not depend on whether the processor has that format, nor on
/// its precision and rounding mode. The exponent is unbounded: the amounts computed here are far inside the
/// range of the format.
class SoftExtended {
 public:
  /// Zero.
  constexpr SoftExtended() noexcept = default;

  [[nodiscard]] static SoftExtended FromInteger(std::int64_t value) noexcept;

  /// Returns the exact value. Throws `FloatError` for infinities and NaN.
  [[nodiscard]] static SoftExtended FromDouble(double value);

  /// Returns 10^`exponent`: exact from 0 to 27, the rounded reciprocal of an exact power from -27 to -1,
  /// otherwise a rounded product of such powers.
  [[nodiscard]] static SoftExtended PowerOfTen(int exponent) noexcept;

  [[nodiscard]] bool IsZero() const noexcept { return mantissa_ == 0; }
  [[nodiscard]] bool IsNegative() const noexcept { return negative_; }
  [[nodiscard]] SoftExtended Magnitude() const noexcept;

  /// Returns the integral part, and the fractional part: both exact, both with the sign of the number.
  [[nodiscard]] SoftExtended Truncated() const noexcept;
  [[nodiscard]] SoftExtended Fraction() const noexcept;

  /// Returns the value truncated toward zero. Throws `FloatError` if it does not fit.
  [[nodiscard]] std::int64_t ToIntegerTruncated() const;

  /// Returns the value rounded to nearest, ties to even. Throws `FloatError` if it does not fit.
  [[nodiscard]] std::int64_t ToIntegerRounded() const;

  /// Returns the nearest double, ties to even; an infinity past the largest double.
  [[nodiscard]] double ToDouble() const noexcept;

  friend SoftExtended operator+(const SoftExtended& left, const SoftExtended& right) noexcept;
  friend SoftExtended operator-(const SoftExtended& left, const SoftExtended& right) noexcept;
  friend SoftExtended operator*(const SoftExtended& left, const SoftExtended& right) noexcept;
  /// Throws `FloatError` if the divisor is zero.
  friend SoftExtended operator/(const SoftExtended& left, const SoftExtended& right);

 private:
  constexpr SoftExtended(bool negative, std::uint64_t mantissa, int exponent) noexcept
      : negative_(negative), mantissa_(mantissa), exponent_(exponent) {}

  // 128 bits; `sticky` tells whether non-zero bits were cut off below them.
  struct Wide {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    bool sticky = false;
  };

  static Wide Quotient(std::uint64_t dividend, std::uint64_t divisor) noexcept;
  static Wide ShiftedRight(std::uint64_t mantissa, int bits) noexcept;
  static SoftExtended Rounded(bool negative, Wide value, int exponent) noexcept;
  static SoftExtended AddMagnitudes(bool negative, const SoftExtended& larger,
                                    const SoftExtended& smaller) noexcept;
  static SoftExtended SubtractMagnitudes(bool negative, const SoftExtended& larger,
                                         const SoftExtended& smaller) noexcept;
  [[nodiscard]] bool MagnitudeBelow(const SoftExtended& other) const noexcept;
  [[nodiscard]] std::int64_t Signed(std::uint64_t magnitude) const;

  // The value is mantissa * 2^exponent; the mantissa's top bit is set unless the value is zero.
  bool negative_ = false;
  std::uint64_t mantissa_ = 0;
  int exponent_ = 0;
};

}  // namespace ravo

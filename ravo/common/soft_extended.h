#pragma once

#include <cstdint>

namespace ravo {

/// A number of the processor's 80-bit format, computed with integers alone: a 64-bit mantissa, every
/// operation rounded to nearest, ties to even. So results do not depend on whether the processor has that
/// format, nor on the precision and rounding mode that a host left in it. The exponent is not bounded: the
/// amounts computed here stay far inside the range of the format.
class SoftExtended {
 public:
  /// Zero.
  constexpr SoftExtended() noexcept = default;

  [[nodiscard]] static SoftExtended FromInteger(std::int64_t value) noexcept;

  /// Exact. `FloatError` for infinities and what is no number.
  [[nodiscard]] static SoftExtended FromDouble(double value);

  /// Ten to `exponent`. Exact from 0 to 27; the rounded reciprocal of an exact power from -27 to -1; a
  /// rounded product of such powers beyond.
  [[nodiscard]] static SoftExtended PowerOfTen(int exponent) noexcept;

  [[nodiscard]] bool IsZero() const noexcept { return mantissa_ == 0; }
  [[nodiscard]] bool IsNegative() const noexcept { return negative_; }
  [[nodiscard]] SoftExtended Magnitude() const noexcept;

  /// The part before the point, and what is left of it: both exact, both with the sign of the number.
  [[nodiscard]] SoftExtended Truncated() const noexcept;
  [[nodiscard]] SoftExtended Fraction() const noexcept;

  /// Toward zero. `FloatError` where the result does not fit.
  [[nodiscard]] std::int64_t ToIntegerTruncated() const;

  /// To nearest, ties to even. `FloatError` where the result does not fit.
  [[nodiscard]] std::int64_t ToIntegerRounded() const;

  /// To nearest, ties to even; an infinity beyond the largest double.
  [[nodiscard]] double ToDouble() const noexcept;

  friend SoftExtended operator+(const SoftExtended& left, const SoftExtended& right) noexcept;
  friend SoftExtended operator-(const SoftExtended& left, const SoftExtended& right) noexcept;
  friend SoftExtended operator*(const SoftExtended& left, const SoftExtended& right) noexcept;
  /// `FloatError` for a zero divisor.
  friend SoftExtended operator/(const SoftExtended& left, const SoftExtended& right);

 private:
  constexpr SoftExtended(bool negative, std::uint64_t mantissa, int exponent) noexcept
      : negative_(negative), mantissa_(mantissa), exponent_(exponent) {}

  // 128 bits with a note whether anything but zeros was cut off below them.
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

#pragma once

#include <cfloat>
#include <cstdint>
#include <optional>

/// Splits floating-point numbers into their bits and joins them, without floating-point arithmetic.
namespace ravo {

/// The number `mantissa` * 2^`exponent` with a separate sign; zero has a sign too.
struct BinaryFloat {
  bool negative = false;
  std::uint64_t mantissa = 0;
  int exponent = 0;
};

/// The range of a floating-point format: mantissas of `bits` bits, fewer at the lowest exponent.
struct BinaryFormat {
  int bits;
  int lowest_exponent;
  int highest_exponent;
};

enum class FloatKind : std::uint8_t { Finite, Infinite, NotANumber };

/// The bit layout of type `Float`.
template <class Float>
struct FloatBits;

template <>
struct FloatBits<double> {
  static constexpr BinaryFormat kFormat{53, -1074, 971};
  [[nodiscard]] static FloatKind Kind(double value) noexcept;
  [[nodiscard]] static bool IsNegative(double value) noexcept;
  /// `value` must be finite.
  [[nodiscard]] static BinaryFloat Split(double value) noexcept;
  /// `parts` must be normalized as by `NearestBinary`.
  [[nodiscard]] static double Join(const BinaryFloat& parts) noexcept;
};

#if LDBL_MANT_DIG == 64
/// The 80-bit format. Bit patterns that the processor rejects as operands count as NaN.
template <>
struct FloatBits<long double> {
  static constexpr BinaryFormat kFormat{64, -16445, 16320};
  [[nodiscard]] static FloatKind Kind(long double value) noexcept;
  [[nodiscard]] static bool IsNegative(long double value) noexcept;
  [[nodiscard]] static BinaryFloat Split(long double value) noexcept;
  [[nodiscard]] static long double Join(const BinaryFloat& parts) noexcept;
};
#endif

}  // namespace ravo

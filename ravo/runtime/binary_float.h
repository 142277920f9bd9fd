#pragma once

#include <cfloat>
#include <cstdint>
#include <optional>

/// The bits of floating-point numbers, taken apart and put together without the processor's arithmetic.
namespace ravo {

/// `mantissa` * 2^`exponent`, with a sign of its own, for zero too.
struct BinaryFloat {
  bool negative = false;
  std::uint64_t mantissa = 0;
  int exponent = 0;
};

/// What a floating-point format can hold: mantissas of `bits` bits, or fewer at the lowest exponent.
struct BinaryFormat {
  int bits;
  int lowest_exponent;
  int highest_exponent;
};

enum class FloatKind : std::uint8_t { Finite, Infinite, NotANumber };

/// How values of type `Float` are stored.
template <class Float>
struct FloatBits;

template <>
struct FloatBits<double> {
  static constexpr BinaryFormat kFormat{53, -1074, 971};
  [[nodiscard]] static FloatKind Kind(double value) noexcept;
  [[nodiscard]] static bool IsNegative(double value) noexcept;
  /// `value` must be finite.
  [[nodiscard]] static BinaryFloat Split(double value) noexcept;
  /// `parts` must be a value of the format as `NearestBinary` makes it.
  [[nodiscard]] static double Join(const BinaryFloat& parts) noexcept;
};

#if LDBL_MANT_DIG == 64
/// The 80-bit format. Bit patterns that the processor refuses as operands count as no number.
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

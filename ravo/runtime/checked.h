#pragma once

#include <ravo/runtime/error.h>

#include <concepts>
#include <cstdint>
#include <utility>

/// Arithmetic that raises instead of leaving its type. Results are those of the mathematical operation.
namespace ravo {

/// left + right, or `OverflowError`.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedAdd(Integer left, Integer right) {
  Integer result{};
  if (__builtin_add_overflow(left, right, &result)) throw OverflowError(u"Integer overflow");
  return result;
}

/// left - right, or `OverflowError`.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedSubtract(Integer left, Integer right) {
  Integer result{};
  if (__builtin_sub_overflow(left, right, &result)) throw OverflowError(u"Integer overflow");
  return result;
}

/// left * right, or `OverflowError`.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedMultiply(Integer left, Integer right) {
  Integer result{};
  if (__builtin_mul_overflow(left, right, &result)) throw OverflowError(u"Integer overflow");
  return result;
}

/// left / right truncated toward zero; `DivisionByZero`, or `OverflowError` for the smallest value by -1.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedDivide(Integer left, Integer right) {
  if (right == 0) throw DivisionByZero(u"Division by zero");
  if constexpr (std::signed_integral<Integer>) {
    if (right == -1) return CheckedSubtract(Integer{0}, left);
  }
  return static_cast<Integer>(left / right);
}

/// `value` as another integer type, or `RangeError` where that type cannot hold it.
template <std::integral To, std::integral From>
[[nodiscard]] constexpr To CheckedCast(From value) {
  if (!std::in_range<To>(value)) throw RangeError(u"Range check error");
  return static_cast<To>(value);
}

}  // namespace ravo

#pragma once

#include <ravo/runtime/error.h>

#include <concepts>
#include <cstdint>
#include <utility>

/// Integer arithmetic that throws instead of overflowing. Results are mathematically exact.
namespace ravo {

/// Returns `left` + `right`. Throws `OverflowError` if the sum does not fit.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedAdd(Integer left, Integer right) {
  Integer result{};
  if (__builtin_add_overflow(left, right, &result)) throw OverflowError(u"Integer overflow");
  return result;
}

/// Returns `left` - `right`. Throws `OverflowError` if the difference does not fit.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedSubtract(Integer left, Integer right) {
  Integer result{};
  if (__builtin_sub_overflow(left, right, &result)) throw OverflowError(u"Integer overflow");
  return result;
}

/// Returns `left` * `right`. Throws `OverflowError` if the product does not fit.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedMultiply(Integer left, Integer right) {
  Integer result{};
  if (__builtin_mul_overflow(left, right, &result)) throw OverflowError(u"Integer overflow");
  return result;
}

/// Returns `left` / `right`, truncated toward zero. Throws `DivisionByZero` if `right` is 0, and
/// `OverflowError` for the smallest value divided by -1.
template <std::integral Integer>
[[nodiscard]] constexpr Integer CheckedDivide(Integer left, Integer right) {
  if (right == 0) throw DivisionByZero(u"Division by zero");
  if constexpr (std::signed_integral<Integer>) {
    if (right == -1) return CheckedSubtract(Integer{0}, left);
  }
  return static_cast<Integer>(left / right);
}

/// Returns `value` as another integer type. Throws `RangeError` if it does not fit.
template <std::integral To, std::integral From>
[[nodiscard]] constexpr To CheckedCast(From value) {
  if (!std::in_range<To>(value)) throw RangeError(u"Range check error");
  return static_cast<To>(value);
}

}  // namespace ravo

#pragma once

#include <cstdint>

namespace ravo {

/// An unsigned 128-bit number in two halves.
struct Wide128 {
  std::uint64_t high = 0;  ///< the upper 64 bits
  std::uint64_t low = 0;   ///< the lower 64 bits
};

/// Returns the full 128-bit product of two 64-bit numbers.
[[nodiscard]] constexpr Wide128 MultiplyWide(std::uint64_t left, std::uint64_t right) noexcept {
#ifdef __SIZEOF_INT128__
  __extension__ using Uint128 = unsigned __int128;
  const Uint128 product = Uint128{left} * right;
  return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
  constexpr std::uint64_t kHalf = 0xFFFFFFFF;
  const std::uint64_t low = (left & kHalf) * (right & kHalf);
  const std::uint64_t cross = (left >> 32) * (right & kHalf) + (low >> 32);
  const std::uint64_t middle = (left & kHalf) * (right >> 32) + (cross & kHalf);
  return {(left >> 32) * (right >> 32) + (cross >> 32) + (middle >> 32), (middle << 32) | (low & kHalf)};
#endif
}

/// A quotient, truncated, and its remainder.
struct WideQuotient {
  std::uint64_t quotient = 0;   ///< rounded toward zero
  std::uint64_t remainder = 0;  ///< less than the divisor
};

/// Returns `dividend` / `divisor`. Precondition: the quotient fits 64 bits, so `dividend.high` < `divisor`.
[[nodiscard]] constexpr WideQuotient DivideWide(const Wide128& dividend, std::uint64_t divisor) noexcept {
  if (dividend.high == 0) return {dividend.low / divisor, dividend.low % divisor};
#ifdef __SIZEOF_INT128__
  __extension__ using Uint128 = unsigned __int128;
  const Uint128 whole = Uint128{dividend.high} << 64 | dividend.low;
  return {static_cast<std::uint64_t>(whole / divisor), static_cast<std::uint64_t>(whole % divisor)};
#else
  WideQuotient result{0, dividend.high};
  for (int bit = 63; bit >= 0; --bit) {
    const bool carry = (result.remainder >> 63) != 0;
    result.remainder = result.remainder << 1 | (dividend.low >> bit & 1);
    const bool fits = carry || result.remainder >= divisor;
    result.remainder -= fits ? divisor : 0;
    result.quotient = result.quotient << 1 | (fits ? 1 : 0);
  }
  return result;
#endif
}

}  // namespace ravo

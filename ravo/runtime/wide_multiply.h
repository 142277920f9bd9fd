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

}  // namespace ravo

#pragma once

#include <array>
#include <cstddef>

/// Weighted sums of digits.
namespace ravo::czech::detail {

/// The sum of the digits at `digits`, each by its weight.
template <std::size_t count>
[[nodiscard]] constexpr int WeightedSum(const char* digits, const std::array<int, count>& weights) noexcept {
  int sum = 0;
  for (std::size_t i = 0; i < count; ++i) sum += (digits[i] - '0') * weights[i];
  return sum;
}

/// The check digit of an IČO that begins with these seven digits.
[[nodiscard]] constexpr char IcoCheckDigit(const char* digits) noexcept {
  const int sum = WeightedSum(digits, std::array{8, 7, 6, 5, 4, 3, 2});
  return static_cast<char>('0' + (11 - sum % 11) % 10);
}

}  // namespace ravo::czech::detail

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo::czech::detail {

/// The number of a country's two letters, 0 to 675, or 676 for what is no two capital letters.
inline constexpr std::size_t kCountries = std::size_t{26} * 26;
[[nodiscard]] constexpr std::size_t CountryNumber(char first, char second) noexcept {
  if (first < 'A' || first > 'Z' || second < 'A' || second > 'Z') return kCountries;
  return static_cast<std::size_t>(first - 'A') * 26 + static_cast<std::size_t>(second - 'A');
}

/// By country, one more than the index of its first row; 0 for none. Rows have a `country`, and those of one
/// stand together.
using CountryIndex = std::array<std::uint8_t, kCountries + 1>;
template <class Row, std::size_t count>
[[nodiscard]] consteval CountryIndex IndexByCountry(const Row (&rows)[count]) {
  static_assert(count < 256);
  CountryIndex index{};
  for (std::size_t i = count; i-- > 0;) {
    index[CountryNumber(rows[i].country[0], rows[i].country[1])] = static_cast<std::uint8_t>(i + 1);
  }
  return index;
}

}  // namespace ravo::czech::detail

#pragma once

#include <string_view>

namespace ravo::czech::detail {

/// Whether a Czech or Slovak number, or its prefix, has a sum divisible by eleven: weights 1, 2, 4, 8, 5, 10,
/// 9, 7, 3, 6 from its end on, which are the powers of two. At most ten digits.
[[nodiscard]] constexpr bool CzechSumMatches(std::string_view digits) noexcept {
  int sum = 0;
  for (const char digit : digits) sum = sum * 2 + (digit - '0');
  return sum % 11 == 0;
}

/// Whether an account of `country` has the check digits that its country prescribes; true for countries whose
/// rules are not known here. Precondition: `own` has the length and the characters that the country's IBANs
/// have past their check digits.
[[nodiscard]] bool NationalChecksMatch(std::string_view country, std::string_view own) noexcept;

}  // namespace ravo::czech::detail

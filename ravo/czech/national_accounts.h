#pragma once

#include <string_view>

namespace ravo::czech::detail {

/// Whether an account of `country` has the check digits that its country prescribes; true for countries whose
/// rules are not known here. Precondition: `own` has the length and the characters that the country's IBANs
/// have past their check digits.
[[nodiscard]] bool NationalChecksMatch(std::string_view country, std::string_view own) noexcept;

}  // namespace ravo::czech::detail

#pragma once

#include <ravo/RavoInterfaceCommon.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace tool {

/// The rounding of amounts.
struct RoundRule {
  ravo::RavoInterfaceCommon::TRoundType type = ravo::RavoInterfaceCommon::rtMath;
  int decimals = 2;     ///< -4 to 14
  bool halves = false;  ///< to the nearest 0.50 instead
};

/// Returns the rule of a VAT letter, H, D, P, N or M, which may be small.
[[nodiscard]] RoundRule RuleOfLetter(char letter);

/// Returns the mode of a rule as the option --mode has it.
[[nodiscard]] std::string_view ModeName(const RoundRule& rule);

/// Returns an amount rounded exactly. Throws `OverflowError` if the result leaves the range of amounts.
[[nodiscard]] ravo::Currency RoundExactly(ravo::Currency amount, const RoundRule& rule);

/// Returns what the suite's modules compute, or no value if they raise an error.
[[nodiscard]] std::optional<ravo::Currency> RoundAsSuite(ravo::Currency amount, const RoundRule& rule);

/// Returns the smallest magnitude at which the suite's modules fail by their nature: up and down wrap at 32
/// bits from there on, the other mode raises an error. No value for a rule that fails nowhere, or only where
/// the rounded amount would leave the range.
[[nodiscard]] std::optional<ravo::Currency> SuiteLimit(const RoundRule& rule);

/// Returns whether an amount reaches the limit of its rule.
[[nodiscard]] bool IsPastSuiteLimit(ravo::Currency amount, const RoundRule& rule);

}  // namespace tool

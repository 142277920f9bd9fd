#pragma once

#include <ravo/czech/day.h>
#include <ravo/czech/reason.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// Rates of VAT and ways of computing it, with the days on which they are in force, since 1993.
namespace ravo::czech {

/// Which of the rates.
enum class VatRateKind : std::uint8_t {
  Zero,           ///< no tax: exempt, or not a payer
  Standard,       ///< the standard rate
  Reduced,        ///< the reduced rate, from 2015 to 2023 the first of two
  SecondReduced,  ///< the second reduced rate, 2015 to 2023
};

/// A rate and the days on which it is in force.
struct VatRate {
  Day first;                                 ///< the first day
  Day last;                                  ///< the last day; 31 December 9999 if there is no end
  VatRateKind kind = VatRateKind::Standard;  ///< which
  std::int32_t percent = 0;                  ///< 21 is 21 %
  std::string_view law;                      ///< the law that set it: "500/2012"
};

/// How the tax comes from an amount. Each gives the tax rounded to the haléř.
enum class VatMethod : std::uint8_t {
  FromBase,                ///< base times rate
  FromTotalByCoefficient,  ///< total times rate / (100 + rate), that quotient rounded to four decimals first
  FromTotal,               ///< total less total / (1 + rate / 100)
};

/// A way of computing the tax and the days on which it is lawful.
struct VatMethodRow {
  VatMethod method = VatMethod::FromBase;  ///< which
  Day first;                               ///< the first day
  Day last;                                ///< the last day; 31 December 9999 if there is no end
  std::string_view law;                    ///< the law that has it
};

/// Returns all rates but `Zero`, by their first day.
[[nodiscard]] std::span<const VatRate> VatRates() noexcept;

/// Returns the percentage of a kind of rate on a day; 0 for `Zero` on any day. Refused: `VatRateUnknown`.
[[nodiscard]] Parsed<std::int32_t> VatPercentOn(Day day, VatRateKind kind) noexcept;

/// Returns the kind of the rate of `percent` on a day, or nothing: 15 % is nothing since 2024.
[[nodiscard]] std::optional<VatRateKind> VatRateKindOn(Day day, std::int32_t percent) noexcept;

/// Returns all ways of computing the tax. Ways from the total under law 588/1992, until 30 April 2004, are
/// not here.
[[nodiscard]] std::span<const VatMethodRow> VatMethods() noexcept;

/// Returns whether a way of computing the tax is lawful on a day.
[[nodiscard]] bool IsLawful(VatMethod method, Day day) noexcept;

}  // namespace ravo::czech

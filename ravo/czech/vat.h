#pragma once

#include <ravo/czech/vat_rates.h>
#include <ravo/runtime/currency.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// VAT of an amount, and the recapitulation of a document by rates. All products are exact, in integers.
///
/// The tax is rounded to the haléř, halves away from zero, so that a credit note is the mirror of its
/// document. What the amount was (base or total) stays as it is, and the third is the rest: sum or
/// difference. That matters at 12 %: of a total of 0.14 the tax is 1.5 haléře and the base 12.5; both rounded
/// up would make 0.15. `half` marks such amounts.
namespace ravo::czech {

/// Base, tax and total of an amount.
struct VatAmounts {
  Currency base;      ///< without the tax
  Currency tax;       ///< whole haléře
  Currency total;     ///< base and tax
  bool half = false;  ///< the exact tax ends on half a haléř: rounding decided
  friend constexpr bool operator==(const VatAmounts&, const VatAmounts&) noexcept = default;
};

/// Returns base, tax and total of `amount`, which `method` says to be a base or a total.
///
/// `percent` is 0 to 100. Refused: `VatRateUnknown` for another, `MoneyRange` for a result beyond 64 bits.
/// Whether the way is lawful on some day is `IsLawful`'s answer.
[[nodiscard]] Parsed<VatAmounts> ComputeVat(Currency amount, std::int32_t percent, VatMethod method) noexcept;

/// The coefficient of a rate in ten-thousandths, rounded half up: 1736 for 21 %. Precondition: 0 to 100.
[[nodiscard]] constexpr std::int32_t VatCoefficient(std::int32_t percent) noexcept {
  return (2 * percent * 10000 + 100 + percent) / (2 * (100 + percent));
}

/// How an amount becomes whole crowns.
enum class CrownRounding : std::uint8_t {
  Nearest,       ///< halves away from zero
  AwayFromZero,  ///< up, as to its size
  TowardZero,    ///< down, as to its size
};

/// Whole crowns and what was added.
struct RoundedTotal {
  Currency rounded;     ///< whole crowns
  Currency difference;  ///< `rounded` less the amount
  friend constexpr bool operator==(const RoundedTotal&, const RoundedTotal&) noexcept = default;
};

/// Returns `total` in whole crowns. Refused: `MoneyRange`.
[[nodiscard]] Parsed<RoundedTotal> RoundToCrowns(Currency total, CrownRounding rounding) noexcept;

/// A line of a document.
struct VatLine {
  Currency amount;                           ///< base or total, as the method says
  VatRateKind rate = VatRateKind::Standard;  ///< its rate
};

/// Where the tax of a document is computed.
enum class VatPer : std::uint8_t {
  Document,  ///< once for each rate, of the sum of its lines
  Line,      ///< of each line, then added
};

/// The part of a document that has one rate.
struct VatRow {
  VatRateKind rate = VatRateKind::Zero;  ///< which
  std::int32_t percent = 0;              ///< its percentage on the day
  VatAmounts amounts;                    ///< `half` if any of its taxes ends on half a haléř
  std::size_t lines = 0;                 ///< how many lines have it; 0 if none
};

/// A document by rates, and as a whole.
struct VatRecapitulation {
  std::array<VatRow, 4> rows{};  ///< by `VatRateKind`
  VatAmounts sum;                ///< of all rows
};

/// Returns the recapitulation of a document's lines by the rates of a day.
///
/// Refused, with the line's index as the position: `VatRateUnknown` for a rate that is not in force,
/// `MoneyRange`. `VatMethod` for a way of computing that is not lawful on the day, at 0.
[[nodiscard]] Parsed<VatRecapitulation> Recapitulate(std::span<const VatLine> lines, VatMethod method,
                                                     VatPer per, Day day) noexcept;

}  // namespace ravo::czech

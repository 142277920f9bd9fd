#pragma once

#include <ravo/common/rounding_step.h>
#include <ravo/runtime/currency.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>

namespace ravo::RavoInterfaceCommon {

/// How an amount is rounded. Stored as one byte; any other value means "not at all".
enum class TRoundType : std::uint8_t {
  rtUp = 0,    ///< away from zero
  rtDown = 1,  ///< toward zero
  rtMath = 2,  ///< halves away from zero
};
using enum TRoundType;

/// Rounds an amount to `Decimals` decimal places: 2 means hundredths, 0 whole crowns, -1 tens.
///
/// The result is that of arithmetic in the 80-bit floating-point format, rounded to nearest, whatever the
/// processor has and whatever a host set it to; halves are found after the fraction was rounded to four
/// places, so 1.005 to two places is 1.01. A rounding type outside the three returns `Value` unchanged.
///
/// `rtUp` and `rtDown` count in 32 bits: |Value| x 10^Decimals of 2147483648 and more wraps silently.
/// Decimals below -4 or above 14, and amounts whose scaled value leaves 64 bits, raise `FloatError`.
///
///     RoundValue(Currency{12340}, rtUp, 2)   // 1.234 -> 1.24
///     RoundValue(Currency{-12390}, rtDown, 2)  // -1.239 -> -1.23
[[nodiscard]] inline Currency RoundValue(Currency Value, TRoundType RoundType, std::int8_t Decimals);

/// Rounds a double to `Decimals` decimal places, with the representation error of doubles and the oddities
/// that stored documents rely on:
///
///  - `rtUp` of a negative value gives the ceiling with its sign flipped: -1.234 to two places is 1.23;
///  - `rtDown` is a floor that lowers most values that are exact already: 3.0 to no places is 2.0, and 1.25
///  to two is
///    1.24;
///  - `rtMath` decides on the double as it is: 1.005 to two places is 1.0.
///
/// Intermediates are those of the 80-bit format. `FloatError` for what is no finite number and for scaled
/// values beyond 64 bits; `rtUp` counts in 32 bits and wraps silently.
[[nodiscard]] RAVO_API double RoundValueFloat(double Value, TRoundType RoundType, std::int8_t Decimals);

/// Rounds an amount of VAT by one of the suite's five rules:
///
///     H  to hundredths, halves away from zero        D  to tenths, halves away from zero
///     P  to the nearest 0.50, quarters away from zero  N  to tenths, away from zero
///     M  to whole crowns, halves away from zero
///
/// Any other letter, lower case included, returns `Value` unchanged. "N" counts tenths in 32 bits, as
/// `RoundValue` does: above a magnitude of 214748364.7 it wraps silently. `FloatError` where the rounded
/// amount, or for "N" ten times the amount, leaves 64 bits; "P" has no limit.
[[nodiscard]] inline Currency RoundDPH(Currency Value, char16_t Kind);

// Implementation. The amounts of documents are rounded here, in a few instructions that a loop can overlap;
// the library itself takes the rest.

namespace detail {

[[nodiscard]] RAVO_API Currency RoundValueOutOfLine(Currency value, TRoundType type, std::int8_t decimals);
[[nodiscard]] RAVO_API Currency RoundDPHOutOfLine(Currency value, char16_t kind);

// Units beyond 32 bits wrap when rounding up or down; that is the library's part.
inline constexpr std::uint64_t kMostUnits = std::numeric_limits<std::int32_t>::max();
inline constexpr std::uint64_t kAnyUnits = std::numeric_limits<std::uint64_t>::max();

// By decimals (0 to 3; four decimals are all that an amount has) and rounding type.
inline constexpr std::array<std::array<ravo::detail::RoundingStep, 3>, 4> kSteps{{
    {ravo::detail::MakeRoundingStep(10000, 9999, kMostUnits),
     ravo::detail::MakeRoundingStep(10000, 0, kMostUnits),
     ravo::detail::MakeRoundingStep(10000, 5000, kAnyUnits)},
    {ravo::detail::MakeRoundingStep(1000, 999, kMostUnits),
     ravo::detail::MakeRoundingStep(1000, 0, kMostUnits),
     ravo::detail::MakeRoundingStep(1000, 500, kAnyUnits)},
    {ravo::detail::MakeRoundingStep(100, 99, kMostUnits), ravo::detail::MakeRoundingStep(100, 0, kMostUnits),
     ravo::detail::MakeRoundingStep(100, 50, kAnyUnits)},
    {ravo::detail::MakeRoundingStep(10, 9, kMostUnits), ravo::detail::MakeRoundingStep(10, 0, kMostUnits),
     ravo::detail::MakeRoundingStep(10, 5, kAnyUnits)},
}};

// "P": to the nearest 0.50, quarters away from zero.
inline constexpr ravo::detail::RoundingStep kHalves = ravo::detail::MakeRoundingStep(5000, 2500, kAnyUnits);

}  // namespace detail

inline Currency RoundValue(Currency Value, TRoundType RoundType, std::int8_t Decimals) {
  const auto type = static_cast<std::size_t>(RoundType);
  const std::size_t decimals = static_cast<std::uint8_t>(Decimals);
  if (type < 3 && decimals < 4 && ravo::detail::TryRound(Value, detail::kSteps[decimals][type])) return Value;
  return detail::RoundValueOutOfLine(Value, RoundType, Decimals);
}

inline Currency RoundDPH(Currency Value, char16_t Kind) {
  const ravo::detail::RoundingStep* step = nullptr;
  switch (Kind) {
    case u'H':
      step = &detail::kSteps[2][std::size_t{2}];
      break;
    case u'D':
      step = &detail::kSteps[1][std::size_t{2}];
      break;
    case u'P':
      step = &detail::kHalves;
      break;
    case u'N':
      step = &detail::kSteps[1][std::size_t{0}];
      break;
    case u'M':
      step = &detail::kSteps[0][std::size_t{2}];
      break;
    default:
      return Value;
  }
  return ravo::detail::TryRound(Value, *step) ? Value : detail::RoundDPHOutOfLine(Value, Kind);
}

}  // namespace ravo::RavoInterfaceCommon

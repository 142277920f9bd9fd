#pragma once

#include <ravo/common/rounding_step.h>
#include <ravo/runtime/currency.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>

namespace ravo::RavoInterfaceCommon {

/// The direction of rounding, stored as one byte. Any other value means no rounding.
enum class TRoundType : std::uint8_t {
  rtUp = 0,    ///< away from zero
  rtDown = 1,  ///< toward zero
  rtMath = 2,  ///< halves away from zero
};
using enum TRoundType;

/// Returns an amount rounded to `Decimals` decimal places: 2 are hundredths, 0 whole crowns, -1 tens.
///
/// The result is that of the 80-bit floating-point format, rounded to nearest, independent of the processor
/// and its state. Halves are recognized after the fraction is rounded to four places, so 1.005 to two places
/// is 1.01. A `RoundType` outside the enumeration returns `Value` unchanged.
///
/// Throws `FloatError` if `Decimals` is below -4 or above 14, or if the scaled amount does not fit 64 bits.
/// `rtUp` and `rtDown` count in 32 bits: |Value| x 10^Decimals of 2147483648 and more wraps silently.
///
///     RoundValue(Currency{12340}, rtUp, 2)   // 1.234 -> 1.24
///     RoundValue(Currency{-12390}, rtDown, 2)  // -1.239 -> -1.23
[[nodiscard]] inline Currency RoundValue(Currency Value, TRoundType RoundType, std::int8_t Decimals);

/// Returns a double rounded to `Decimals` decimal places, with the representation error of doubles and the
/// oddities that stored documents depend on.
///
/// Intermediate results are those of the 80-bit format. Throws `FloatError` for infinities and NaN, and if
/// the scaled value does not fit 64 bits.
///
///   rtUp    gives the ceiling of a negative value with its sign flipped: -1.234 to 2 places is 1.23;
///           it counts in 32 bits and wraps silently
///   rtDown  is a floor that lowers most exact values by one unit: 3.0 to 0 places is 2.0, and 1.25
///           to 2 places is 1.24
///   rtMath  uses the exact value of the double: 1.005 to 2 places is 1.0
[[nodiscard]] RAVO_API double RoundValueFloat(double Value, TRoundType RoundType, std::int8_t Decimals);

/// Returns an amount of VAT, rounded by one of the suite's five rules:
///
///     H  to hundredths, halves away from zero        D  to tenths, halves away from zero
///     P  to the nearest 0.50, quarters away from zero  N  to tenths, away from zero
///     M  to whole crowns, halves away from zero
///
/// Any other letter, including lower case, returns `Value` unchanged. Throws `FloatError` if the rounded
/// amount does not fit 64 bits, or for "N" ten times the amount; "P" has no limit. "N" counts tenths in 32
/// bits, as `RoundValue` does: above a magnitude of 214748364.7 it wraps silently.
[[nodiscard]] inline Currency RoundDPH(Currency Value, char16_t Kind);

// Implementation. Common amounts are rounded inline, in a few instructions that overlap in a loop; the
// library handles the others out of line.

namespace detail {

[[nodiscard]] RAVO_API Currency RoundValueOutOfLine(Currency value, TRoundType type, std::int8_t decimals);
[[nodiscard]] RAVO_API Currency RoundDPHOutOfLine(Currency value, char16_t kind);

// Up and down wrap past 32 bits of units; the inline form leaves those to the library.
inline constexpr std::uint64_t kMostUnits = std::numeric_limits<std::int32_t>::max();
inline constexpr std::uint64_t kAnyUnits = std::numeric_limits<std::uint64_t>::max();

// Indexed by decimals (0 to 3; an amount has only four) and rounding type.
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

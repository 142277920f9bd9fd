#pragma once

#include <ravo/runtime/currency.h>
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
[[nodiscard]] RAVO_API Currency RoundValue(Currency Value, TRoundType RoundType, std::int8_t Decimals);

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
/// Any other letter, lower case included, returns `Value` unchanged.
[[nodiscard]] RAVO_API Currency RoundDPH(Currency Value, char16_t Kind);

}  // namespace ravo::RavoInterfaceCommon

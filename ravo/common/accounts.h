// The accounting helpers that all modules of the suite share, so that each of them gives the same result.
//
// Identifiers that a bookkeeper types are checked here and in identifiers.h. Money is rounded in rounding.h:
// the common amounts by the integer steps of rounding_step.h, inline, the others by the arithmetic of the
// 80-bit format in soft_extended.h. calendar.h steps dates and writes them for SQL, descriptions.h forms what
// the user reads, stream_records.h and text_checksum.h form what is stored. The other headers hold one small
// function each.
//
// Start here; rounding.h is the hard part. Results are stored in documents, so every stated branch is
// contract. This room never shows a dialogue, touches no file and keeps no state.
#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Checks of identifiers that a Czech bookkeeper types. A digit is one of "0" to "9": other digits of
/// Unicode, signs and blanks are not. Invalid input gives false rather than an error, unless stated.
namespace ravo::RavoInterfaceCommon {

/// Returns whether `text` consists of digits, at least one. Nothing is trimmed.
[[nodiscard]] RAVO_API bool IsNumbers(std::u16string_view text) noexcept;

/// Returns whether `text` is a synthetic account: exactly three digits.
[[nodiscard]] RAVO_API bool ValidSU(std::u16string_view text) noexcept;

/// Returns whether `text` is an analytic account: up to three digits. The empty text is valid, because an
/// account may have no analytic part.
[[nodiscard]] RAVO_API bool ValidAU(std::u16string_view text) noexcept;

/// Returns whether `text` is an account of the chart of accounts, a synthetic and an analytic part: three to
/// six digits.
[[nodiscard]] RAVO_API bool ValidUcet(std::u16string_view text) noexcept;

/// Splits an account without checking it: sets `SU` to its first three units, unchanged, and `AU` to the next
/// three, without leading and trailing blanks and control characters. Units from the seventh on are ignored.
RAVO_API void UcetNaSUAU(std::u16string_view Ucet, std::u16string& SU, std::u16string& AU);

/// Returns whether `text` is a payment reference (variable symbol) with a valid Luhn check digit.
///
/// The length is not limited, and leading zeros are allowed. Throws `OverflowError` if the weighted sum does
/// not fit 32 bits, which takes hundreds of millions of digits.
///
///     ValidVS(u"79927398713")   // true
[[nodiscard]] RAVO_API bool ValidVS(std::u16string_view text);

/// Returns whether `text` is a bank account whose weighted sum is divisible by 11: "19-2000145399/0800".
///
/// The text from the first "/" on is ignored, then every character that is not a digit; prefix and base
/// number form one sum. Throws `FloatError` for more than 62 digits.
[[nodiscard]] RAVO_API bool UcetMod11(std::u16string_view text);

/// Computes the check digit of an EAN code; returns whether the trimmed `code` is one: 7 or 12 digits without
/// a check digit, or 8 or 13 with it.
///
/// `OldCheck` becomes the check digit of the code (a blank if it has none), `NewCheck` the computed one,
/// `FullCode` the code with the computed digit. If the text is not a code they become a blank, a blank and
/// the empty text. The two digits are not compared.
///
///     CalculateEAN(u"400638133393", old_check, new_check, full)   // true, " ", "1", "4006381333931"
RAVO_API bool CalculateEAN(std::u16string_view code, std::u16string& OldCheck, std::u16string& NewCheck,
                           std::u16string& FullCode);

}  // namespace ravo::RavoInterfaceCommon

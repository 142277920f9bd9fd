#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Checks of the identifiers that a Czech bookkeeper types. A digit is one of "0" to "9" and nothing else: no
/// other digits of Unicode, no sign, no blank. Bad input is answered, not raised.
namespace ravo::RavoInterfaceCommon {

/// Whether the text is digits alone, at least one. Nothing is trimmed.
[[nodiscard]] RAVO_API bool IsNumbers(std::u16string_view text) noexcept;

/// A synthetic account: exactly three digits.
[[nodiscard]] RAVO_API bool ValidSU(std::u16string_view text) noexcept;

/// An analytic account: up to three digits; the empty text is one, for an account may have no analytic part.
[[nodiscard]] RAVO_API bool ValidAU(std::u16string_view text) noexcept;

/// An account of the chart of accounts: a synthetic and an analytic part, three to six digits.
[[nodiscard]] RAVO_API bool ValidUcet(std::u16string_view text) noexcept;

/// Splits an account without checking it: `SU` is its first three units as they stand, `AU` the next three
/// without blanks and control characters at both ends. Units from the seventh on are ignored.
RAVO_API void UcetNaSUAU(std::u16string_view Ucet, std::u16string& SU, std::u16string& AU);

/// A payment reference (variable symbol) with a valid Luhn check digit. There is no limit of length and no
/// rule for leading zeros. `OverflowError` where the sum of a text of hundreds of millions of digits leaves
/// 32 bits.
///
///     ValidVS(u"79927398713")   // true
[[nodiscard]] RAVO_API bool ValidVS(std::u16string_view text);

/// A bank account as typed, checked by weights modulo 11: "19-2000145399/0800". What follows the first "/" is
/// dropped, then everything but digits; prefix and base number form one sum. `FloatError` for more than 62
/// digits.
[[nodiscard]] RAVO_API bool UcetMod11(std::u16string_view text);

/// The check digit of an EAN code of 7 or 12 digits, or of 8 or 13 that carry one already. `OldCheck` becomes
/// the digit that the code carries (else one blank), `NewCheck` the digit that it should carry, `FullCode`
/// the code with that digit. Answers whether the trimmed text is such a code; where it is not, the results
/// are one blank, one blank and nothing. The two digits are not compared.
///
///     CalculateEAN(u"400638133393", old_check, new_check, full)   // true, " ", "1", "4006381333931"
RAVO_API bool CalculateEAN(std::u16string_view code, std::u16string& OldCheck, std::u16string& NewCheck,
                           std::u16string& FullCode);

}  // namespace ravo::RavoInterfaceCommon

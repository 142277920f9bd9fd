#pragma once

#include <ravo/runtime/export.h>

/// General categories of Unicode, for one code unit of UTF-16. Each function answers whether the unit is of
/// the category that its comment names; an unassigned unit is of none. The answers are compiled decision
/// trees: constant time, no table, no allocation.
namespace ravo::DIUnicode {

/// L, a letter.
[[nodiscard]] RAVO_API bool CharIsLetterW(char16_t c) noexcept;
/// Lu, an upper-case letter.
[[nodiscard]] RAVO_API bool CharIsLetterUpperCaseW(char16_t c) noexcept;
/// Ll, a lower-case letter.
[[nodiscard]] RAVO_API bool CharIsLetterLowerCaseW(char16_t c) noexcept;
/// Lt, a letter of title case, such as U+01C5.
[[nodiscard]] RAVO_API bool CharIsLetterTitleCaseW(char16_t c) noexcept;
/// Lm, a modifier letter.
[[nodiscard]] RAVO_API bool CharIsLetterModifierW(char16_t c) noexcept;
/// Lo, a letter without case.
[[nodiscard]] RAVO_API bool CharIsLetterOtherW(char16_t c) noexcept;

/// M, a mark.
[[nodiscard]] RAVO_API bool CharIsMarkW(char16_t c) noexcept;
/// Mn, a mark that takes no room.
[[nodiscard]] RAVO_API bool CharIsMarkNon_SpacingW(char16_t c) noexcept;
/// Mc, a mark that takes room.
[[nodiscard]] RAVO_API bool CharIsMarkSpacing_CombinedW(char16_t c) noexcept;
/// Me, a mark around its letter.
[[nodiscard]] RAVO_API bool CharIsMarkEnclosingW(char16_t c) noexcept;

/// N, a number.
[[nodiscard]] RAVO_API bool CharIsNumberW(char16_t c) noexcept;
/// Nd, a decimal digit of any script.
[[nodiscard]] RAVO_API bool CharIsNumber_DecimalW(char16_t c) noexcept;
/// Nl, a letter used as a number, such as U+2160.
[[nodiscard]] RAVO_API bool CharIsNumber_LetterW(char16_t c) noexcept;
/// No, any other number, such as U+00BD.
[[nodiscard]] RAVO_API bool CharIsNumber_OtherW(char16_t c) noexcept;

/// P, punctuation.
[[nodiscard]] RAVO_API bool CharIsPunctuationW(char16_t c) noexcept;
/// Pc, a connector, such as "_".
[[nodiscard]] RAVO_API bool CharIsPunctuation_ConnectorW(char16_t c) noexcept;
/// Pd, a dash or hyphen.
[[nodiscard]] RAVO_API bool CharIsPunctuation_DashW(char16_t c) noexcept;
/// Ps, an opening bracket or low quote.
[[nodiscard]] RAVO_API bool CharIsPunctuation_OpenW(char16_t c) noexcept;
/// Pe, a closing bracket.
[[nodiscard]] RAVO_API bool CharIsPunctuation_CloseW(char16_t c) noexcept;
/// Pi, an initial quote.
[[nodiscard]] RAVO_API bool CharIsPunctuation_InitialQuoteW(char16_t c) noexcept;
/// Pf, a final quote.
[[nodiscard]] RAVO_API bool CharIsPunctuation_FinalQuoteW(char16_t c) noexcept;
/// Po, any other punctuation.
[[nodiscard]] RAVO_API bool CharIsPunctuation_OtherW(char16_t c) noexcept;

/// S, a symbol.
[[nodiscard]] RAVO_API bool CharIsSymbolW(char16_t c) noexcept;
/// Sm, a mathematical symbol.
[[nodiscard]] RAVO_API bool CharIsSymbolMathW(char16_t c) noexcept;
/// Sc, a currency sign.
[[nodiscard]] RAVO_API bool CharIsSymbolCurrencyW(char16_t c) noexcept;
/// Sk, a modifier symbol, such as U+00B4.
[[nodiscard]] RAVO_API bool CharIsSymbolModifierW(char16_t c) noexcept;
/// So, any other symbol.
[[nodiscard]] RAVO_API bool CharIsSymbolOtherW(char16_t c) noexcept;

/// Z, a separator.
[[nodiscard]] RAVO_API bool CharIsSeparatorW(char16_t c) noexcept;
/// Zs, a space.
[[nodiscard]] RAVO_API bool CharIsSeparatorSpaceW(char16_t c) noexcept;
/// Zl, U+2028 alone.
[[nodiscard]] RAVO_API bool CharIsSeparatorLineW(char16_t c) noexcept;
/// Zp, U+2029 alone.
[[nodiscard]] RAVO_API bool CharIsSeparatorParagraphW(char16_t c) noexcept;

/// C without the unassigned: Cc, Cf, Cs or Co.
[[nodiscard]] RAVO_API bool CharIsOtherW(char16_t c) noexcept;
/// Cc, a control character.
[[nodiscard]] RAVO_API bool CharIsOtherControlW(char16_t c) noexcept;
/// Cf, a format character, such as U+00AD.
[[nodiscard]] RAVO_API bool CharIsOtherFormatW(char16_t c) noexcept;
/// Cs, a surrogate: the one detailed category that answers for U+D800 to U+DFFF.
[[nodiscard]] RAVO_API bool CharIsOtherSurrogateW(char16_t c) noexcept;
/// Co, for private use: U+E000 to U+F8FF.
[[nodiscard]] RAVO_API bool CharIsOtherPrivateUseW(char16_t c) noexcept;

/// A letter (L) of the alphabets of European correspondence: Latin with all its diacritics, Greek and
/// Cyrillic (U+0000 to U+024F, U+0370 to U+052F, U+1E00 to U+1EFF). Letters of other scripts, modifier
/// letters and letter-like symbols of other blocks are not common.
[[nodiscard]] RAVO_API bool CharIsLetterCommonW(char16_t c) noexcept;

}  // namespace ravo::DIUnicode

#pragma once

#include <ravo/runtime/export.h>

/// Unicode general categories of one UTF-16 unit.
///
/// Each function returns whether the unit has the category that its comment names; an unassigned unit has
/// none. They are compiled decision trees: constant time, no table, no allocation.
namespace ravo::DIUnicode {

/// L, a letter.
[[nodiscard]] RAVO_API bool CharIsLetterW(char16_t c) noexcept;
/// Lu, an upper-case letter.
[[nodiscard]] RAVO_API bool CharIsLetterUpperCaseW(char16_t c) noexcept;
/// Ll, a lower-case letter.
[[nodiscard]] RAVO_API bool CharIsLetterLowerCaseW(char16_t c) noexcept;
/// Lt, a title-case letter, such as U+01C5.
[[nodiscard]] RAVO_API bool CharIsLetterTitleCaseW(char16_t c) noexcept;
/// Lm, a modifier letter.
[[nodiscard]] RAVO_API bool CharIsLetterModifierW(char16_t c) noexcept;
/// Lo, a letter without case.
[[nodiscard]] RAVO_API bool CharIsLetterOtherW(char16_t c) noexcept;

/// M, a mark.
[[nodiscard]] RAVO_API bool CharIsMarkW(char16_t c) noexcept;
/// Mn, a nonspacing mark.
[[nodiscard]] RAVO_API bool CharIsMarkNon_SpacingW(char16_t c) noexcept;
/// Mc, a spacing combining mark.
[[nodiscard]] RAVO_API bool CharIsMarkSpacing_CombinedW(char16_t c) noexcept;
/// Me, an enclosing mark.
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
/// Ps, opening punctuation: a bracket or low quote.
[[nodiscard]] RAVO_API bool CharIsPunctuation_OpenW(char16_t c) noexcept;
/// Pe, closing punctuation: a bracket.
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
/// Zl, the line separator: only U+2028.
[[nodiscard]] RAVO_API bool CharIsSeparatorLineW(char16_t c) noexcept;
/// Zp, the paragraph separator: only U+2029.
[[nodiscard]] RAVO_API bool CharIsSeparatorParagraphW(char16_t c) noexcept;

/// C except unassigned: Cc, Cf, Cs or Co.
[[nodiscard]] RAVO_API bool CharIsOtherW(char16_t c) noexcept;
/// Cc, a control character.
[[nodiscard]] RAVO_API bool CharIsOtherControlW(char16_t c) noexcept;
/// Cf, a format character, such as U+00AD.
[[nodiscard]] RAVO_API bool CharIsOtherFormatW(char16_t c) noexcept;
/// Cs, a surrogate. Among the detailed categories, the only one of U+D800 to U+DFFF.
[[nodiscard]] RAVO_API bool CharIsOtherSurrogateW(char16_t c) noexcept;
/// Co, private use: U+E000 to U+F8FF.
[[nodiscard]] RAVO_API bool CharIsOtherPrivateUseW(char16_t c) noexcept;

/// A letter (L) of the alphabets in European correspondence: Latin with all diacritics, Greek and Cyrillic
/// (U+0000 to U+024F, U+0370 to U+052F, U+1E00 to U+1EFF). Excludes other scripts, and modifier letters and
/// letter-like symbols of other blocks.
[[nodiscard]] RAVO_API bool CharIsLetterCommonW(char16_t c) noexcept;

}  // namespace ravo::DIUnicode

#pragma once

#include <ravo/runtime/export.h>
#include <ravo/unicode/characters.h>

#include <string_view>

/// Tests and mappings of one character. Those for UTF-16 are the character database's own.
namespace ravo::DIUtils {

using DIUnicode::CharCanonicalCombiningClassW;
using DIUnicode::CharDecomposeCanonicalStrW;
using DIUnicode::CharDecomposeCanonicalW;
using DIUnicode::CharDecomposeCompatibleStrW;
using DIUnicode::CharDecomposeCompatibleW;
using DIUnicode::CharDecomposeHangulW;
using DIUnicode::CharIsAlphaNumW;
using DIUnicode::CharIsAlphaW;
using DIUnicode::CharIsCrLfW;
using DIUnicode::CharIsDigitW;
using DIUnicode::CharIsHangulW;
using DIUnicode::CharIsHexDigitW;
using DIUnicode::CharIsLetterCommonW;
using DIUnicode::CharIsLetterLowerCaseW;
using DIUnicode::CharIsLetterModifierW;
using DIUnicode::CharIsLetterOtherW;
using DIUnicode::CharIsLetterTitleCaseW;
using DIUnicode::CharIsLetterUpperCaseW;
using DIUnicode::CharIsLetterW;
using DIUnicode::CharIsMarkEnclosingW;
using DIUnicode::CharIsMarkNon_SpacingW;
using DIUnicode::CharIsMarkSpacing_CombinedW;
using DIUnicode::CharIsMarkW;
using DIUnicode::CharIsNumber_DecimalW;
using DIUnicode::CharIsNumber_LetterW;
using DIUnicode::CharIsNumber_OtherW;
using DIUnicode::CharIsNumberW;
using DIUnicode::CharIsOtherControlW;
using DIUnicode::CharIsOtherFormatW;
using DIUnicode::CharIsOtherPrivateUseW;
using DIUnicode::CharIsOtherSurrogateW;
using DIUnicode::CharIsOtherW;
using DIUnicode::CharIsPunctuation_CloseW;
using DIUnicode::CharIsPunctuation_ConnectorW;
using DIUnicode::CharIsPunctuation_DashW;
using DIUnicode::CharIsPunctuation_FinalQuoteW;
using DIUnicode::CharIsPunctuation_InitialQuoteW;
using DIUnicode::CharIsPunctuation_OpenW;
using DIUnicode::CharIsPunctuation_OtherW;
using DIUnicode::CharIsPunctuationW;
using DIUnicode::CharIsSeparatorLineW;
using DIUnicode::CharIsSeparatorParagraphW;
using DIUnicode::CharIsSeparatorSpaceW;
using DIUnicode::CharIsSeparatorW;
using DIUnicode::CharIsSymbolCurrencyW;
using DIUnicode::CharIsSymbolMathW;
using DIUnicode::CharIsSymbolModifierW;
using DIUnicode::CharIsSymbolOtherW;
using DIUnicode::CharIsSymbolW;
using DIUnicode::CharIsWhiteSpaceGtW;
using DIUnicode::CharIsWhiteSpaceHyphenGtW;
using DIUnicode::CharIsWhiteSpaceHyphenW;
using DIUnicode::CharIsWhiteSpaceLtW;
using DIUnicode::CharIsWhiteSpaceW;
using DIUnicode::CharToCaseFoldW;
using DIUnicode::CharToLowerW;
using DIUnicode::CharToTitleW;
using DIUnicode::CharToUpperW;
using DIUnicode::IsCharLowLineW;
using DIUnicode::IsCharQuoteW;
using DIUnicode::IsCharWhiteSpaceOrAmpersandW;
using DIUnicode::IsCharWhiteSpaceOrColonW;
using DIUnicode::IsCharWhiteSpaceOrNoBreakSpaceW;
using DIUnicode::IsCharWordSeparatorW;

/// Returns whether `c` is a carriage return or line feed.
[[nodiscard]] RAVO_API bool CharIsCrLf(char16_t c) noexcept;
[[nodiscard]] RAVO_API bool CharIsCrLfA(char c) noexcept;

/// Returns whether `c` is a decimal digit: of any script in UTF-16, 0 to 9 in 8-bit text.
[[nodiscard]] RAVO_API bool CharIsDigit(char16_t c) noexcept;
[[nodiscard]] RAVO_API bool CharIsDigitA(char c) noexcept;

/// Returns whether `c` is one of `chars`.
[[nodiscard]] RAVO_API bool CharIn(char16_t c, std::u16string_view chars) noexcept;
[[nodiscard]] RAVO_API bool CharIn(char c, std::string_view chars) noexcept;

}  // namespace ravo::DIUtils

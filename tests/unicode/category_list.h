#pragma once

#include <ravo/unicode/characters.h>

#include <string_view>

namespace ravo::test {

/// A category test and the prefixes of the general categories that it must accept.
struct CategoryTest {
  const char* name;
  bool (*function)(char16_t) noexcept;
  std::string_view category;
};

#define RAVO_CATEGORY(name, category) \
  { #name, DIUnicode::name, category }
inline constexpr CategoryTest kCategoryTests[] = {
    RAVO_CATEGORY(CharIsLetterW, "L"),
    RAVO_CATEGORY(CharIsLetterUpperCaseW, "Lu"),
    RAVO_CATEGORY(CharIsLetterLowerCaseW, "Ll"),
    RAVO_CATEGORY(CharIsLetterTitleCaseW, "Lt"),
    RAVO_CATEGORY(CharIsLetterModifierW, "Lm"),
    RAVO_CATEGORY(CharIsLetterOtherW, "Lo"),
    RAVO_CATEGORY(CharIsMarkW, "M"),
    RAVO_CATEGORY(CharIsMarkNon_SpacingW, "Mn"),
    RAVO_CATEGORY(CharIsMarkSpacing_CombinedW, "Mc"),
    RAVO_CATEGORY(CharIsMarkEnclosingW, "Me"),
    RAVO_CATEGORY(CharIsNumberW, "N"),
    RAVO_CATEGORY(CharIsNumber_DecimalW, "Nd"),
    RAVO_CATEGORY(CharIsNumber_LetterW, "Nl"),
    RAVO_CATEGORY(CharIsNumber_OtherW, "No"),
    RAVO_CATEGORY(CharIsPunctuationW, "P"),
    RAVO_CATEGORY(CharIsPunctuation_ConnectorW, "Pc"),
    RAVO_CATEGORY(CharIsPunctuation_DashW, "Pd"),
    RAVO_CATEGORY(CharIsPunctuation_OpenW, "Ps"),
    RAVO_CATEGORY(CharIsPunctuation_CloseW, "Pe"),
    RAVO_CATEGORY(CharIsPunctuation_InitialQuoteW, "Pi"),
    RAVO_CATEGORY(CharIsPunctuation_FinalQuoteW, "Pf"),
    RAVO_CATEGORY(CharIsPunctuation_OtherW, "Po"),
    RAVO_CATEGORY(CharIsSymbolW, "S"),
    RAVO_CATEGORY(CharIsSymbolMathW, "Sm"),
    RAVO_CATEGORY(CharIsSymbolCurrencyW, "Sc"),
    RAVO_CATEGORY(CharIsSymbolModifierW, "Sk"),
    RAVO_CATEGORY(CharIsSymbolOtherW, "So"),
    RAVO_CATEGORY(CharIsSeparatorW, "Z"),
    RAVO_CATEGORY(CharIsSeparatorSpaceW, "Zs"),
    RAVO_CATEGORY(CharIsSeparatorLineW, "Zl"),
    RAVO_CATEGORY(CharIsSeparatorParagraphW, "Zp"),
    RAVO_CATEGORY(CharIsOtherW, "C"),
    RAVO_CATEGORY(CharIsOtherControlW, "Cc"),
    RAVO_CATEGORY(CharIsOtherFormatW, "Cf"),
    RAVO_CATEGORY(CharIsOtherSurrogateW, "Cs"),
    RAVO_CATEGORY(CharIsOtherPrivateUseW, "Co"),
    RAVO_CATEGORY(CharIsAlphaW, "L"),
    RAVO_CATEGORY(CharIsDigitW, "Nd"),
};
#undef RAVO_CATEGORY

inline constexpr unsigned kUnits = 0x10000;

}  // namespace ravo::test

#include "support.h"
#include <ravo/runtime/text.h>
#include <ravo/unicode/characters.h>

using ravo::c::Computed;
using ravo::c::FailArgument;
using ravo::c::Guarded;
using ravo::c::WriteText;
namespace unicode = ravo::DIUnicode;

namespace {

bool IsUnassigned(char16_t unit) noexcept;

struct Property {
  const char* category;  // null for what is no category
  bool (*has)(char16_t unit) noexcept;
};

// In the order of ravo_character_property.
constexpr Property kProperties[] = {
    {"Cn", IsUnassigned},
    {"Lu", unicode::CharIsLetterUpperCaseW},
    {"Ll", unicode::CharIsLetterLowerCaseW},
    {"Lt", unicode::CharIsLetterTitleCaseW},
    {"Lm", unicode::CharIsLetterModifierW},
    {"Lo", unicode::CharIsLetterOtherW},
    {"Mn", unicode::CharIsMarkNon_SpacingW},
    {"Mc", unicode::CharIsMarkSpacing_CombinedW},
    {"Me", unicode::CharIsMarkEnclosingW},
    {"Nd", unicode::CharIsNumber_DecimalW},
    {"Nl", unicode::CharIsNumber_LetterW},
    {"No", unicode::CharIsNumber_OtherW},
    {"Pc", unicode::CharIsPunctuation_ConnectorW},
    {"Pd", unicode::CharIsPunctuation_DashW},
    {"Ps", unicode::CharIsPunctuation_OpenW},
    {"Pe", unicode::CharIsPunctuation_CloseW},
    {"Pi", unicode::CharIsPunctuation_InitialQuoteW},
    {"Pf", unicode::CharIsPunctuation_FinalQuoteW},
    {"Po", unicode::CharIsPunctuation_OtherW},
    {"Sm", unicode::CharIsSymbolMathW},
    {"Sc", unicode::CharIsSymbolCurrencyW},
    {"Sk", unicode::CharIsSymbolModifierW},
    {"So", unicode::CharIsSymbolOtherW},
    {"Zs", unicode::CharIsSeparatorSpaceW},
    {"Zl", unicode::CharIsSeparatorLineW},
    {"Zp", unicode::CharIsSeparatorParagraphW},
    {"Cc", unicode::CharIsOtherControlW},
    {"Cf", unicode::CharIsOtherFormatW},
    {"Cs", unicode::CharIsOtherSurrogateW},
    {"Co", unicode::CharIsOtherPrivateUseW},
    {"L", unicode::CharIsLetterW},
    {"M", unicode::CharIsMarkW},
    {"N", unicode::CharIsNumberW},
    {"P", unicode::CharIsPunctuationW},
    {"S", unicode::CharIsSymbolW},
    {"Z", unicode::CharIsSeparatorW},
    {"C", unicode::CharIsOtherW},
    {nullptr, unicode::CharIsLetterCommonW},
    {nullptr, unicode::CharIsWhiteSpaceW},
    {nullptr, unicode::CharIsAlphaW},
    {nullptr, unicode::CharIsAlphaNumW},
    {nullptr, unicode::CharIsDigitW},
    {nullptr, unicode::CharIsHexDigitW},
    {nullptr, unicode::CharIsHangulW},
    {nullptr, unicode::CharIsCrLfW},
    {nullptr, unicode::IsCharLowLineW},
    {nullptr, unicode::IsCharQuoteW},
    {nullptr, unicode::IsCharWordSeparatorW},
    {nullptr, unicode::IsCharWhiteSpaceOrAmpersandW},
    {nullptr, unicode::IsCharWhiteSpaceOrColonW},
    {nullptr, unicode::IsCharWhiteSpaceOrNoBreakSpaceW},
    {nullptr, unicode::CharIsWhiteSpaceGtW},
    {nullptr, unicode::CharIsWhiteSpaceLtW},
    {nullptr, unicode::CharIsWhiteSpaceHyphenW},
    {nullptr, unicode::CharIsWhiteSpaceHyphenGtW},
};
static_assert(std::size(kProperties) == RAVO_CHARACTER_WHITE_SPACE_HYPHEN_GT + 1);

// Null for a number that is no property's.
const Property* PropertyOf(ravo_character_property number) {
  return number >= 0 && static_cast<std::size_t>(number) < std::size(kProperties) ? &kProperties[number]
                                                                                  : nullptr;
}

ravo_character_property CategoryOf(char16_t unit) {
  ravo_character_property category = RAVO_CHARACTER_OTHER_PRIVATE_USE;
  while (category != RAVO_CHARACTER_UNASSIGNED && !kProperties[category].has(unit)) --category;
  return category;
}

bool IsUnassigned(char16_t unit) noexcept { return CategoryOf(unit) == RAVO_CHARACTER_UNASSIGNED; }

std::u16string Decomposed(char16_t unit, ravo_decomposition decomposition) {
  if (decomposition == RAVO_DECOMPOSITION_HANGUL) return unicode::CharDecomposeHangulW(unit);
  return decomposition == RAVO_DECOMPOSITION_CANONICAL ? unicode::CharDecomposeCanonicalStrW(unit)
                                                       : unicode::CharDecomposeCompatibleStrW(unit);
}

}  // namespace

ravo_status ravo_character_is(uint16_t unit, ravo_character_property property, int32_t* answer,
                              ravo_error* error) {
  const Property* const row = PropertyOf(property);
  if (row == nullptr) return FailArgument(error, "the property is unknown");
  return Computed(answer, error, [&] { return row->has(unit) ? 1 : 0; });
}

ravo_status ravo_character_category(uint16_t unit, ravo_character_property* category, ravo_error* error) {
  return Computed(category, error, [&] { return CategoryOf(unit); });
}

const char* ravo_character_category_name(ravo_character_property category) {
  const Property* const row = PropertyOf(category);
  return row == nullptr ? nullptr : row->category;
}

ravo_status ravo_character_to_upper(uint16_t unit, uint16_t* mapped, ravo_error* error) {
  return Computed(mapped, error, [&] { return unicode::CharToUpperW(unit); });
}

ravo_status ravo_character_to_lower(uint16_t unit, uint16_t* mapped, ravo_error* error) {
  return Computed(mapped, error, [&] { return unicode::CharToLowerW(unit); });
}

ravo_status ravo_character_to_title(uint16_t unit, uint16_t* mapped, ravo_error* error) {
  return Computed(mapped, error, [&] { return unicode::CharToTitleW(unit); });
}

ravo_status ravo_character_to_case_fold(uint16_t unit, uint16_t* mapped, ravo_error* error) {
  return Computed(mapped, error, [&] { return unicode::CharToCaseFoldW(unit); });
}

ravo_status ravo_character_combining_class(uint16_t unit, int32_t* rank, ravo_error* error) {
  return Computed(rank, error, [&] { return unicode::CharCanonicalCombiningClassW(unit); });
}

ravo_status ravo_character_decompose(uint16_t unit, ravo_decomposition decomposition, char* buffer,
                                     size_t size, size_t* length, ravo_error* error) {
  if (decomposition < RAVO_DECOMPOSITION_CANONICAL || decomposition > RAVO_DECOMPOSITION_HANGUL)
    return FailArgument(error, "the decomposition is unknown");
  return Guarded(error, [&] {
    return WriteText({buffer, size, length}, ravo::ToUtf8(Decomposed(unit, decomposition)), error);
  });
}

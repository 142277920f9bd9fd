#include <ravo/unicode/characters/categories.h>
#include <ravo/unicode/characters/character_kinds.h>

namespace ravo::DIUnicode {
namespace {

constexpr bool IsSurrogate(char16_t c) { return c >= 0xD800 && c <= 0xDFFF; }

bool IsOfWord(char16_t c) {
  return CharIsAlphaNumW(c) || CharIsMarkW(c) || CharIsNumberW(c) || CharIsPunctuation_ConnectorW(c);
}

bool IsAssignedSeparator(char16_t c) {
  return CharIsSeparatorW(c) || CharIsPunctuationW(c) || CharIsSymbolW(c) || CharIsOtherW(c);
}

}  // namespace

bool CharIsAlphaW(char16_t c) noexcept { return CharIsLetterW(c); }

bool CharIsDigitW(char16_t c) noexcept {
  return c < 0x80 ? c >= u'0' && c <= u'9' : CharIsNumber_DecimalW(c);
}

bool CharIsHexDigitW(char16_t c) noexcept {
  return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}

bool CharIsHangulW(char16_t c) noexcept { return c >= 0xAC00 && c <= 0xD7A3; }
bool CharIsCrLfW(char16_t c) noexcept { return c == u'\r' || c == u'\n'; }
bool IsCharLowLineW(char16_t c) noexcept { return c == u'_'; }
bool IsCharQuoteW(char16_t c) noexcept { return c == u'"' || c == u'\''; }

bool IsCharWordSeparatorW(char16_t c) noexcept {
  return !IsOfWord(c) && !IsSurrogate(c) && IsAssignedSeparator(c);
}

bool IsCharWhiteSpaceOrAmpersandW(char16_t c) noexcept { return c == u'&' || CharIsWhiteSpaceW(c); }
bool IsCharWhiteSpaceOrColonW(char16_t c) noexcept { return c == u':' || CharIsWhiteSpaceW(c); }
bool IsCharWhiteSpaceOrNoBreakSpaceW(char16_t c) noexcept { return CharIsWhiteSpaceW(c); }
bool CharIsWhiteSpaceGtW(char16_t c) noexcept { return c == u'>' || CharIsWhiteSpaceW(c); }
bool CharIsWhiteSpaceLtW(char16_t c) noexcept { return c == u'<' || CharIsWhiteSpaceW(c); }
bool CharIsWhiteSpaceHyphenW(char16_t c) noexcept { return c == u'-' || CharIsWhiteSpaceW(c); }
bool CharIsWhiteSpaceHyphenGtW(char16_t c) noexcept { return c == u'-' || CharIsWhiteSpaceGtW(c); }

}  // namespace ravo::DIUnicode

#include "category_list.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

TEST(CharToUpperW, StatedCases) {
  EXPECT_EQ(CharToUpperW(u'a'), u'A');
  EXPECT_EQ(CharToUpperW(0x00DF), 0x00DF);
  EXPECT_EQ(CharToUpperW(0xA641), 0xA640);
  EXPECT_EQ(CharToUpperW(0x0180), 0x0243);
  EXPECT_EQ(CharToUpperW(u'č'), u'Č');
}

TEST(CharToLowerW, StatedCases) {
  EXPECT_EQ(CharToLowerW(u'Ř'), u'ř');
  EXPECT_EQ(CharToLowerW(0x0130), u'i');
  EXPECT_EQ(CharToLowerW(u'1'), u'1');
}

TEST(CharToTitleW, StatedCases) { EXPECT_EQ(CharToTitleW(0x01C6), 0x01C5); }

TEST(CharToCaseFoldW, StatedCases) {
  EXPECT_EQ(CharToCaseFoldW(u'A'), u'a');
  EXPECT_EQ(CharToCaseFoldW(0x03C2), 0x03C3);
}

TEST(CharCanonicalCombiningClassW, StatedCases) {
  EXPECT_EQ(CharCanonicalCombiningClassW(u'a'), 0);
  EXPECT_EQ(CharCanonicalCombiningClassW(0x0300), 230);
  EXPECT_EQ(CharCanonicalCombiningClassW(0x0327), 202);
}

TEST(CharDecomposeCanonicalW, StatedCases) {
  EXPECT_EQ(CharDecomposeCanonicalW(0x00C0).Text(), u"\u0041\u0300");
  EXPECT_FALSE(CharDecomposeCanonicalW(u'A'));
  EXPECT_EQ(CharDecomposeCanonicalW(u'A').size(), 0u);
  EXPECT_EQ(CharDecomposeCanonicalW(0x2126).Text(), u"\u03A9");
  EXPECT_EQ(CharDecomposeCanonicalW(0x01D5).Text(), u"\u0055\u0308\u0304");
  EXPECT_EQ(CharDecomposeCanonicalW(0x1E08).Text(), u"\u0043\u0327\u0301");
  EXPECT_FALSE(CharDecomposeCanonicalW(0xAC00));
}

TEST(CharDecomposeCompatibleW, StatedCases) {
  EXPECT_EQ(CharDecomposeCompatibleW(0x00C0).Text(), u"\u0041\u0300");
  EXPECT_EQ(CharDecomposeCompatibleW(0xFB01).Text(), u"fi");
  EXPECT_EQ(CharDecomposeCompatibleW(0x2460).Text(), u"1");
  EXPECT_FALSE(CharDecomposeCompatibleW(u'f'));
}

TEST(CharDecomposeStrW, IsTheSequenceAsText) {
  EXPECT_EQ(CharDecomposeCanonicalStrW(0x00C0), u"\u0041\u0300");
  EXPECT_EQ(CharDecomposeCanonicalStrW(u'A'), u"");
  EXPECT_EQ(CharDecomposeCompatibleStrW(0xFB01), u"fi");
  EXPECT_EQ(CharDecomposeCanonicalStrW(0xFA6C), u"\U000242EE");
}

TEST(CharDecomposeHangulW, SyllablesAlone) {
  EXPECT_EQ(CharDecomposeHangulW(0xAC00), u"\u1100\u1161");
  EXPECT_EQ(CharDecomposeHangulW(0xD55C), u"\u1112\u1161\u11AB");
  EXPECT_EQ(CharDecomposeHangulW(0xD7A3), u"\u1112\u1175\u11C2");
  EXPECT_EQ(CharDecomposeHangulW(0xABFF), u"");
  EXPECT_EQ(CharDecomposeHangulW(0xD7A4), u"");
}

// Among the detailed categories, only the one for surrogates accepts a surrogate, and no mapping changes it.
TEST(Characters, SurrogatesAreOfOneDetailedCategory) {
  for (unsigned code = 0xD800; code <= 0xDFFF; ++code) {
    const auto unit = static_cast<char16_t>(code);
    for (const test::CategoryTest& row : test::kCategoryTests) {
      EXPECT_EQ(row.function(unit), row.category == "C" || row.category == "Cs") << row.name << code;
    }
    EXPECT_EQ(CharToUpperW(unit), unit);
    EXPECT_EQ(CharToLowerW(unit), unit);
    EXPECT_EQ(CharToTitleW(unit), unit);
    EXPECT_EQ(CharToCaseFoldW(unit), unit);
  }
}

TEST(Characters, UnassignedUnitsAreOfNoCategory) {
  for (const char16_t unit : {char16_t{0x0378}, char16_t{0xFFFE}, char16_t{0xFFFF}, char16_t{0xFDD0}}) {
    for (const test::CategoryTest& row : test::kCategoryTests) EXPECT_FALSE(row.function(unit)) << row.name;
  }
}

TEST(CharIsLetterCommonW, EuropeanAlphabets) {
  for (const char16_t unit : std::u16string_view(u"aZčŘßŁΩжЯ\u1E9E"))
    EXPECT_TRUE(CharIsLetterCommonW(unit)) << unsigned{unit};
  for (const char16_t unit : std::u16string_view(u"1_\u05D0\u4E00\u3042\u02B0"))
    EXPECT_FALSE(CharIsLetterCommonW(unit)) << unsigned{unit};
}

// Returns all units that a kind accepts.
std::u16string Members(bool (*function)(char16_t) noexcept) {
  std::u16string members;
  for (unsigned unit = 0; unit < test::kUnits; ++unit) {
    if (function(static_cast<char16_t>(unit))) members.push_back(static_cast<char16_t>(unit));
  }
  return members;
}

constexpr std::u16string_view kWhite =
    u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
    u"\u2028\u2029\u202F\u205F\u3000";

std::u16string WhiteAnd(std::u16string_view more) {
  std::u16string all = std::u16string(kWhite) + std::u16string(more);
  std::sort(all.begin(), all.end());
  return all;
}

TEST(CharIsWhiteSpaceW, Members) { EXPECT_EQ(Members(CharIsWhiteSpaceW), kWhite); }
TEST(CharIsHexDigitW, Members) { EXPECT_EQ(Members(CharIsHexDigitW), u"0123456789ABCDEFabcdef"); }
TEST(CharIsCrLfW, Members) { EXPECT_EQ(Members(CharIsCrLfW), u"\n\r"); }
TEST(IsCharLowLineW, Members) { EXPECT_EQ(Members(IsCharLowLineW), u"_"); }
TEST(IsCharQuoteW, Members) { EXPECT_EQ(Members(IsCharQuoteW), u"\"'"); }
TEST(IsCharWhiteSpaceOrAmpersandW, Members) {
  EXPECT_EQ(Members(IsCharWhiteSpaceOrAmpersandW), WhiteAnd(u"&"));
}
TEST(IsCharWhiteSpaceOrColonW, Members) { EXPECT_EQ(Members(IsCharWhiteSpaceOrColonW), WhiteAnd(u":")); }
TEST(IsCharWhiteSpaceOrNoBreakSpaceW, Members) {
  EXPECT_EQ(Members(IsCharWhiteSpaceOrNoBreakSpaceW), kWhite);
}
TEST(CharIsWhiteSpaceGtW, Members) { EXPECT_EQ(Members(CharIsWhiteSpaceGtW), WhiteAnd(u">")); }
TEST(CharIsWhiteSpaceLtW, Members) { EXPECT_EQ(Members(CharIsWhiteSpaceLtW), WhiteAnd(u"<")); }
TEST(CharIsWhiteSpaceHyphenW, Members) { EXPECT_EQ(Members(CharIsWhiteSpaceHyphenW), WhiteAnd(u"-")); }
TEST(CharIsWhiteSpaceHyphenGtW, Members) { EXPECT_EQ(Members(CharIsWhiteSpaceHyphenGtW), WhiteAnd(u"->")); }

TEST(CharIsHangulW, Borders) {
  EXPECT_EQ(Members(CharIsHangulW).size(), 11172u);
  EXPECT_TRUE(CharIsHangulW(0xAC00));
  EXPECT_TRUE(CharIsHangulW(0xD7A3));
}

TEST(IsCharWordSeparatorW, StatedCases) {
  for (const char16_t unit : std::u16string_view(u" ,.-'\"+\u00A0\u2013\t"))
    EXPECT_TRUE(IsCharWordSeparatorW(unit));
  for (const char16_t unit : std::u16string_view(u"aČ1_\u0301\xD800"))
    EXPECT_FALSE(IsCharWordSeparatorW(unit));
}

}  // namespace
}  // namespace ravo::DIUnicode

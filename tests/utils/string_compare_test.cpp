#include "support/guarded_buffer.h"
#include <ravo/utils/strings/compare.h>

#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrSame, IsTheWideMember) {
  EXPECT_TRUE(StrSame(u"účet", u"účet"));
  EXPECT_FALSE(StrSame(u"účet", u"Účet"));
}
TEST(StrSameA, Rows) {
  EXPECT_TRUE(StrSameA("abc", "abc"));
  EXPECT_FALSE(StrSameA("abc", "abd"));
  EXPECT_FALSE(StrSameA("abc", "ab"));
  EXPECT_TRUE(StrSameA("", {}));
}
TEST(StrSameW, Rows) {
  EXPECT_TRUE(StrSameW(u"", {}));
  EXPECT_FALSE(StrSameW(u"a", {}));
  EXPECT_FALSE(StrSameW(std::u16string_view(u"a\0b", 3), std::u16string_view(u"a\0c", 3)));
}
TEST(StrSameI, IsTheWideMember) { EXPECT_TRUE(StrSameI(u"ÚČET", u"účet")); }
TEST(StrSameIA, FoldsAsciiAlone) {
  EXPECT_TRUE(StrSameIA("ABC", "abc"));
  EXPECT_FALSE(StrSameIA("\xC8", "\xE8"));
  EXPECT_FALSE(StrSameIA("@", "`"));
}
TEST(StrSameIW, FoldsOneUnitForOne) {
  EXPECT_TRUE(StrSameIW(u"ŽLUŤOUČKÝ KŮŇ ÚPĚL ĎÁBELSKÉ ÓDY", u"žluťoučký kůň úpěl ďábelské ódy"));
  EXPECT_TRUE(StrSameIW(u"\u212A", u"k"));
  EXPECT_TRUE(StrSameIW(u"\u1E9E", u"ß"));
  EXPECT_FALSE(StrSameIW(u"STRASSE", u"straße"));
  EXPECT_FALSE(StrSameIW(u"č", u"c"));
}

TEST(BufSameA, Rows) {
  EXPECT_TRUE(BufSameA("abc", 2, "abd", 2));
  EXPECT_FALSE(BufSameA("abc", 3, "abd", 3));
  EXPECT_TRUE(BufSameA(nullptr, 0, "x", 0));
  EXPECT_TRUE(BufSameA(nullptr, 0, nullptr, 0));
}
TEST(BufSameW, Rows) {
  EXPECT_TRUE(BufSameW(u"abc", 2, u"abd", 2));
  EXPECT_FALSE(BufSameW(u"abc", 2, u"abc", 3));
  EXPECT_TRUE(BufSameW(nullptr, 0, nullptr, 0));
}
TEST(BufSameIA, Rows) {
  EXPECT_TRUE(BufSameIA("aBc", 2, "Abd", 2));
  EXPECT_FALSE(BufSameIA("aBc", 3, "Abd", 3));
  EXPECT_TRUE(BufSameIA(nullptr, 0, nullptr, 0));
}
TEST(BufSameIW, Rows) {
  EXPECT_TRUE(BufSameIW(u"Čc", 2, u"čC", 2));
  EXPECT_FALSE(BufSameIW(u"Čc", 2, u"čD", 2));
  EXPECT_TRUE(BufSameIW(nullptr, 0, nullptr, 0));
}
TEST(BufStrSame, IsTheWideMember) { EXPECT_TRUE(BufStrSame(u"abc", 2, u"ab")); }
TEST(BufStrSameA, Rows) {
  EXPECT_TRUE(BufStrSameA("abc", 2, "ab"));
  EXPECT_FALSE(BufStrSameA("abc", 3, "ab"));
  EXPECT_TRUE(BufStrSameA(nullptr, 0, ""));
}
TEST(BufStrSameW, Rows) {
  EXPECT_TRUE(BufStrSameW(u"abc", 2, u"ab"));
  EXPECT_FALSE(BufStrSameW(u"abc", 2, u"aB"));
  EXPECT_TRUE(BufStrSameW(nullptr, 0, u""));
}
TEST(BufStrSameI, IsTheWideMember) { EXPECT_TRUE(BufStrSameI(u"ČB", 2, u"čb")); }
TEST(BufStrSameIA, Rows) {
  EXPECT_TRUE(BufStrSameIA("ABC", 2, "ab"));
  EXPECT_FALSE(BufStrSameIA("ABC", 2, "ac"));
}
TEST(BufStrSameIW, Rows) {
  EXPECT_TRUE(BufStrSameIW(u"ČB", 2, u"čb"));
  EXPECT_FALSE(BufStrSameIW(nullptr, 0, u"a"));
}

TEST(StrSameStart, IsTheWideMember) { EXPECT_TRUE(StrSameStart(u"účet 311", u"účet")); }
TEST(StrSameStartA, Rows) {
  EXPECT_TRUE(StrSameStartA("abc", "ab"));
  EXPECT_TRUE(StrSameStartA("abc", ""));
  EXPECT_FALSE(StrSameStartA("abc", "aB"));
  EXPECT_FALSE(StrSameStartA("ab", "abc"));
}
TEST(StrSameStartW, Rows) {
  EXPECT_TRUE(StrSameStartW(u"abc", u"abc"));
  EXPECT_TRUE(StrSameStartW(u"", u""));
  EXPECT_FALSE(StrSameStartW(u"", u"a"));
}
TEST(StrSameStartI, IsTheWideMember) { EXPECT_TRUE(StrSameStartI(u"ÚČET", u"úč")); }
TEST(StrSameStartIA, Rows) {
  EXPECT_TRUE(StrSameStartIA("ABC", "ab"));
  EXPECT_FALSE(StrSameStartIA("ABC", "ac"));
}
TEST(StrSameStartIW, Rows) {
  EXPECT_TRUE(StrSameStartIW(u"ÚČET", u"úč"));
  EXPECT_FALSE(StrSameStartIW(u"ÚČET", u"uc"));
}

TEST(StrComp, IsTheWideMember) { EXPECT_EQ(StrComp(u"a", u"c"), -2); }
TEST(StrCompA, GivesTheRawDifference) {
  EXPECT_EQ(StrCompA("abc", "abc"), 0);
  EXPECT_EQ(StrCompA("abd", "aba"), 3);
  EXPECT_EQ(StrCompA("ab", "abcd"), -2);
  EXPECT_EQ(StrCompA("\xFF", "a"), 255 - 'a');
  EXPECT_EQ(StrCompA("", ""), 0);
}
TEST(StrCompW, GivesTheRawDifference) {
  EXPECT_EQ(StrCompW(u"\uFFFF", u"\u0001"), 65534);
  EXPECT_EQ(StrCompW(u"", u"abc"), -3);
  EXPECT_EQ(StrCompW(u"A", u"a"), -32);
  EXPECT_EQ(StrCompW({}, {}), 0);
}
TEST(StrCompI, IsTheWideMember) { EXPECT_EQ(StrCompI(u"Č", u"č"), 0); }
TEST(StrCompIA, ComparesFoldedCharacters) {
  EXPECT_EQ(StrCompIA("ABC", "abc"), 0);
  EXPECT_EQ(StrCompIA("_", "A"), '_' - 'a');
}
TEST(StrCompIW, ComparesFoldedCharacters) {
  EXPECT_EQ(StrCompIW(u"ČA", u"čb"), -1);
  EXPECT_EQ(StrCompIW(u"Č", u"d"), 0x10D - u'd');
  EXPECT_EQ(StrCompIW(u"Čč", u"č"), 1);
}

// A difference at every position of texts of every length up to several blocks of any kernel, with a guard
// page.
TEST(StrCompIW, FindsTheDifferenceAtEveryPlace) {
  const std::u16string lower(70, u'č');
  for (std::size_t length = 1; length <= lower.size(); ++length) {
    for (std::size_t at = 0; at < length; ++at) {
      std::u16string other(length, u'Č');
      other[at] = u'Ž';
      const test::GuardedBuffer left(std::as_bytes(std::span(lower.data(), length)));
      const test::GuardedBuffer right(std::as_bytes(std::span(other)));
      const std::u16string_view texts[] = {{reinterpret_cast<const char16_t*>(left.Bytes().data()), length},
                                           {reinterpret_cast<const char16_t*>(right.Bytes().data()), length}};
      ASSERT_EQ(StrCompIW(texts[0], texts[1]), u'č' - u'ž');
      ASSERT_FALSE(StrSameIW(texts[0], texts[1]));
      ASSERT_TRUE(StrSameIW(texts[0].substr(0, at), texts[1].substr(0, at)));
      ASSERT_TRUE(StrSameIW(texts[0].substr(at + 1), texts[1].substr(at + 1)));
      ASSERT_EQ(StrCompW(texts[1].substr(at), texts[0].substr(at)), u'Ž' - u'č');
    }
  }
}

}  // namespace
}  // namespace ravo::DIUtils

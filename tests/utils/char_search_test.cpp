#include <ravo/utils/strings/char_search.h>
#include <ravo/utils/strings/char_tests.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrPosChar, IsTheWideMember) { EXPECT_EQ(StrPosChar(u'č', u"účet"), 2u); }
TEST(StrPosCharA, Rows) {
  EXPECT_EQ(StrPosCharA('b', "abcb"), 2u);
  EXPECT_EQ(StrPosCharA('b', "abcb", 3), 4u);
  EXPECT_EQ(StrPosCharA('x', "abcb"), 0u);
  EXPECT_EQ(StrPosCharA('b', "", 1), 0u);
  EXPECT_EQ(StrPosCharA('b', "abcb", 5), 0u);
}
TEST(StrPosCharW, Rows) {
  EXPECT_EQ(StrPosCharW(u'b', u"abcb", 0), 2u);
  EXPECT_EQ(StrPosCharW(u'b', u"abcb", 5), 0u);
  EXPECT_EQ(StrPosCharW(u'b', {}), 0u);
}
TEST(StrPosCharBackA, Rows) {
  EXPECT_EQ(StrPosCharBackA('b', "abcb"), 4u);
  EXPECT_EQ(StrPosCharBackA('b', "abcb", 3), 2u);
  EXPECT_EQ(StrPosCharBackA('a', "abcb", 0), 1u);
  EXPECT_EQ(StrPosCharBackA('b', "abcb", 1), 0u);
  EXPECT_EQ(StrPosCharBackA('b', ""), 0u);
}
TEST(StrPosCharBackW, Rows) {
  EXPECT_EQ(StrPosCharBackW(u'b', u"abcb", 99), 4u);
  EXPECT_EQ(StrPosCharBackW(u'x', u"abcb"), 0u);
}

TEST(StrPosCharsA, Rows) {
  EXPECT_EQ(StrPosCharsA("xc", "abcb"), 3u);
  EXPECT_EQ(StrPosCharsA("ab", "abcb", 3), 4u);
  EXPECT_EQ(StrPosCharsA("", "abcb"), 0u);
}
TEST(StrPosCharsW, Rows) {
  EXPECT_EQ(StrPosCharsW(u"čx", u"účet"), 2u);
  EXPECT_EQ(StrPosCharsW(u"xyz", u"účet"), 0u);
}
TEST(BufPosCharsA, Rows) {
  EXPECT_EQ(BufPosCharsA("bc", "abcb", 4, 3), 3u);
  EXPECT_EQ(BufPosCharsA("bc", nullptr, 0), 0u);
}
TEST(BufPosCharsW, Rows) {
  EXPECT_EQ(BufPosCharsW(u"c", u"abcb", 2), 0u);
  EXPECT_EQ(BufPosCharsW(u"c", u"abcb", 4), 3u);
  EXPECT_EQ(BufPosCharsW(u"c", nullptr, 0), 0u);
}
TEST(StrPosCharsBackA, Rows) {
  EXPECT_EQ(StrPosCharsBackA("bc", "abcba"), 4u);
  EXPECT_EQ(StrPosCharsBackA("bc", "abcba", 3), 3u);
  EXPECT_EQ(StrPosCharsBackA("x", "abcba"), 0u);
}
TEST(StrPosNotCharsA, Rows) {
  EXPECT_EQ(StrPosNotCharsA("0 ", "00 12"), 4u);
  EXPECT_EQ(StrPosNotCharsA("0", "000"), 0u);
  EXPECT_EQ(StrPosNotCharsA("", "abc"), 1u);
  EXPECT_EQ(StrPosNotCharsA("", ""), 0u);
}
TEST(StrPosNotCharsW, Rows) {
  EXPECT_EQ(StrPosNotCharsW(u"0 ", u"00 12"), 4u);
  EXPECT_EQ(StrPosNotCharsW(u"012 ", u"00 12"), 0u);
}
TEST(StrPosNotCharsBackA, Rows) {
  EXPECT_EQ(StrPosNotCharsBackA(" ", "ab  "), 2u);
  EXPECT_EQ(StrPosNotCharsBackA(" ", "a b  ", 2), 1u);
  EXPECT_EQ(StrPosNotCharsBackA(" ", "   "), 0u);
}

TEST(StrContainsChar, IsTheWideMember) { EXPECT_TRUE(StrContainsChar(u'č', u"účet")); }
TEST(StrContainsCharA, Rows) {
  EXPECT_TRUE(StrContainsCharA('b', "abc"));
  EXPECT_FALSE(StrContainsCharA('B', "abc"));
}
TEST(StrContainsCharW, Rows) {
  EXPECT_TRUE(StrContainsCharW(u'č', u"účet"));
  EXPECT_FALSE(StrContainsCharW(u'č', u""));
}
TEST(StrContainsCharsA, Rows) {
  EXPECT_TRUE(StrContainsCharsA("xb", "abc"));
  EXPECT_FALSE(StrContainsCharsA("xy", "abc"));
}
TEST(StrHasCharsW, OfASetOrATest) {
  EXPECT_TRUE(StrHasCharsW(u"xč", u"účet"));
  EXPECT_FALSE(StrHasCharsW(u"xy", u"účet"));
  EXPECT_TRUE(StrHasCharsW(CharIsDigitW, u"účet 1"));
  EXPECT_FALSE(StrHasCharsW(CharIsDigitW, u"účet"));
}
TEST(BufHasCharsW, OfASetOrATest) {
  EXPECT_TRUE(BufHasCharsW(u"t", u"účet", 4));
  EXPECT_FALSE(BufHasCharsW(u"t", u"účet", 3));
  EXPECT_FALSE(BufHasCharsW(u"t", nullptr, 0));
  EXPECT_TRUE(BufHasCharsW(CharIsDigitW, u"a1", 2));
  EXPECT_FALSE(BufHasCharsW(CharIsDigitW, u"a1", 1));
}
TEST(StrConsistsOfW, Rows) {
  EXPECT_TRUE(StrConsistsOfW(u"0123456789", u"2024"));
  EXPECT_FALSE(StrConsistsOfW(u"0123456789", u"20 24"));
  EXPECT_TRUE(StrConsistsOfW(u"", u""));
  EXPECT_FALSE(StrConsistsOfW(u"", u"a"));
}
TEST(BufIsCharsW, OfASetOrATest) {
  EXPECT_TRUE(BufIsCharsW(u"ab", u"abc", 2));
  EXPECT_FALSE(BufIsCharsW(u"ab", u"abc", 3));
  EXPECT_TRUE(BufIsCharsW(u"ab", nullptr, 0));
  EXPECT_TRUE(BufIsCharsW(CharIsDigitW, u"12", 2));
  EXPECT_FALSE(BufIsCharsW(CharIsDigitW, u"1x", 2));
}

TEST(StrCountChar, IsTheWideMember) { EXPECT_EQ(StrCountChar(u'č', u"čč"), 2u); }
TEST(StrCountCharA, Rows) {
  EXPECT_EQ(StrCountCharA('a', "banana"), 3u);
  EXPECT_EQ(StrCountCharA('x', "banana"), 0u);
  EXPECT_EQ(StrCountCharA('\0', std::string_view("a\0\0", 3)), 2u);
}
TEST(StrCountCharW, Rows) {
  EXPECT_EQ(StrCountCharW(u'a', u"banana"), 3u);
  EXPECT_EQ(StrCountCharW(u'a', u""), 0u);
}

TEST(CharIsCrLf, Rows) {
  EXPECT_TRUE(CharIsCrLf(u'\r'));
  EXPECT_FALSE(CharIsCrLf(u'\t'));
}
TEST(CharIsCrLfA, Rows) {
  for (int byte = 0; byte < 256; ++byte)
    EXPECT_EQ(CharIsCrLfA(static_cast<char>(byte)), byte == 10 || byte == 13);
}
TEST(CharIsDigit, OfEveryScript) {
  EXPECT_TRUE(CharIsDigit(u'7'));
  EXPECT_TRUE(CharIsDigit(0x0667));
  EXPECT_FALSE(CharIsDigit(0x00B2));
}
TEST(CharIsDigitA, Rows) {
  for (int byte = 0; byte < 256; ++byte)
    EXPECT_EQ(CharIsDigitA(static_cast<char>(byte)), byte >= '0' && byte <= '9');
}
TEST(CharIn, BothOverloads) {
  EXPECT_TRUE(CharIn(u'č', u"áč"));
  EXPECT_FALSE(CharIn(u'c', u"áč"));
  EXPECT_TRUE(CharIn('a', "ab"));
  EXPECT_FALSE(CharIn('a', ""));
}
TEST(DIUtils, HasTheCharacterDatabaseUnderItsOwnName) {
  EXPECT_EQ(&DIUtils::CharToUpperW, &DIUnicode::CharToUpperW);
  EXPECT_EQ(&DIUtils::CharIsLetterW, &DIUnicode::CharIsLetterW);
  EXPECT_EQ(&DIUtils::CharIsWhiteSpaceW, &DIUnicode::CharIsWhiteSpaceW);
  EXPECT_EQ(&DIUtils::CharDecomposeHangulW, &DIUnicode::CharDecomposeHangulW);
}

}  // namespace
}  // namespace ravo::DIUtils

#include "support/effort.h"
#include <ravo/runtime/error.h>
#include <ravo/utils/strings/replace.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrReplace, IsTheWideMember) { EXPECT_EQ(StrReplace(u"účet", u"če", u"-"), u"ú-t"); }
TEST(StrReplaceA, Rows) {
  EXPECT_EQ(StrReplaceA("a.b.c", ".", "--"), "a--b--c");
  EXPECT_EQ(StrReplaceA("aaa", "aa", "a"), "aa");
  EXPECT_EQ(StrReplaceA("abc", "", "x"), "abc");
  EXPECT_EQ(StrReplaceA("", "a", "x"), "");
  EXPECT_EQ(StrReplaceA("abab", "ab", ""), "");
}
TEST(StrReplaceW, Rows) {
  EXPECT_EQ(StrReplaceW(u"a.b.c", u".", u"--"), u"a--b--c");
  EXPECT_EQ(StrReplaceW(u"abc", u"x", u"y"), u"abc");
  EXPECT_EQ(StrReplaceW(u"aAa", u"a", u"aa"), u"aaAaa");
  EXPECT_EQ(StrReplaceW({}, {}, {}), u"");
}
TEST(StrReplaceIA, Rows) {
  EXPECT_EQ(StrReplaceIA("aAa", "A", "x"), "xxx");
  EXPECT_EQ(StrReplaceIA("\xC8\xE8", "\xE8", "x"), "\xC8x");
}
TEST(StrReplaceIW, Rows) { EXPECT_EQ(StrReplaceIW(u"Čč", u"č", u"x"), u"xx"); }

// Every pass creates more occurrences for the next one.
TEST(StrReplaceLoopA, EndsWithAnErrorWhereTheTextGrowsAndGrows) {
  if (test::kSanitized) GTEST_SKIP() << "a text grows to the limit: the other builds do, and the wide form";
  std::string text;
  for (int i = 0; i < 64; ++i) text += "ab";
  EXPECT_THROW(static_cast<void>(StrReplaceLoopA(text, "ab", "bbaa")), RangeError);
}

// It would end, but after too many passes.
TEST(StrReplaceLoopW, EndsWithAnErrorAfterTooManyPasses) {
  const std::u16string long_text = u"aaaaaaaaaaaaaaab";
  const auto short_text = std::u16string_view(long_text).substr(6);
  const std::u16string sorted = StrReplaceLoopW(short_text, u"ab", u"bba");
  EXPECT_EQ(sorted.find(u'a'), 512U);
  EXPECT_EQ(sorted.substr(512), u"aaaaaaaaa");
  EXPECT_THROW(static_cast<void>(StrReplaceLoopW(long_text, u"ab", u"bba")), RangeError);
}

TEST(StrReplaceLoopW, UntilNothingIsLeft) {
  EXPECT_EQ(StrReplaceLoopW(u"a     b", u"  ", u" "), u"a b");
  EXPECT_EQ(StrReplaceLoopW(u"     ", u"  ", u" "), u" ");
  EXPECT_EQ(StrReplaceLoopW(u"aabb", u"ab", u""), u"");
  EXPECT_EQ(StrReplaceLoopW(u"bababa", u"ba", u"ab"), u"aaabbb");
  EXPECT_EQ(StrReplaceLoopW(u"abc", u"", u"x"), u"abc");
  EXPECT_EQ(StrReplaceLoopW(u"abc", u"x", u"xx"), u"abc");
}
TEST(StrReplaceLoopW, RaisesWhereThereIsNoEnd) {
  EXPECT_THROW(static_cast<void>(StrReplaceLoopW(u"abc", u"b", u"bb")), RangeError);
  EXPECT_THROW(static_cast<void>(StrReplaceLoopW(std::u16string(40, u'a') + u"b", u"ab", u"bba")),
               RangeError);
}
TEST(StrReplaceLoopA, Rows) {
  EXPECT_EQ(StrReplaceLoopA("a     b", "  ", " "), "a b");
  EXPECT_THROW(static_cast<void>(StrReplaceLoopA("abc", "b", "b")), RangeError);
}
TEST(StrReplaceLoopIA, Rows) {
  EXPECT_EQ(StrReplaceLoopIA("xAaAax", "aa", "a"), "xax");
  EXPECT_THROW(static_cast<void>(StrReplaceLoopIA("abc", "b", "B")), RangeError);
}
TEST(StrReplaceLoopIW, Rows) {
  EXPECT_EQ(StrReplaceLoopIW(u"xČčČx", u"čč", u"č"), u"xčx");
  EXPECT_THROW(static_cast<void>(StrReplaceLoopIW(u"č", u"Č", u"č")), RangeError);
}

TEST(StrReplaceCharA, Rows) {
  EXPECT_EQ(StrReplaceCharA("a,b,c", ',', ';'), "a;b;c");
  EXPECT_EQ(StrReplaceCharA("", ',', ';'), "");
}
TEST(StrReplaceCharW, Rows) {
  EXPECT_EQ(StrReplaceCharW(u"ačbč", u'č', u'c'), u"acbc");
  EXPECT_EQ(StrReplaceCharW(u"abc", u'x', u'c'), u"abc");
}

TEST(StrRemoveFromToIA, Rows) {
  EXPECT_EQ(StrRemoveFromToIA("a<B>b</B>c", "<", ">"), "abc");
  EXPECT_EQ(StrRemoveFromToIA("aBEGINxendb", "begin", "END"), "ab");
  EXPECT_EQ(StrRemoveFromToIA("a<b", "<", ">"), "a<b");
  EXPECT_EQ(StrRemoveFromToIA("a>b<c>d", "<", ">"), "a>bd");
  EXPECT_EQ(StrRemoveFromToIA("a||b||c", "||", "||"), "ac");
  EXPECT_EQ(StrRemoveFromToIA("a<b>", "", ">"), "a<b>");
  EXPECT_EQ(StrRemoveFromToIA("a<b>", "<", ""), "a<b>");
}
TEST(StrRemoveFromToIW, Rows) {
  EXPECT_EQ(StrRemoveFromToIW(u"aČxčb", u"č", u"Č"), u"ab");
  EXPECT_EQ(StrRemoveFromToIW(u"", u"<", u">"), u"");
}
TEST(StrRemoveSpacingA, Rows) {
  EXPECT_EQ(StrRemoveSpacingA(" 1 2\t3\r\n"), "123");
  EXPECT_EQ(StrRemoveSpacingA(std::string_view("a\0b", 3)), "ab");
  EXPECT_EQ(StrRemoveSpacingA("a\xA0"), "a\xA0");
}
TEST(StrRemoveSpacingW, Rows) {
  EXPECT_EQ(StrRemoveSpacingW(u" 1\u00A0234\u202F567 "), u"1234567");
  EXPECT_EQ(StrRemoveSpacingW(u"\u200Ba\x01"), u"\u200Ba\x01");
}

}  // namespace
}  // namespace ravo::DIUtils

#include <ravo/utils/strings/char_tests.h>
#include <ravo/utils/strings/trim.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrTrim, IsTheWideMember) { EXPECT_EQ(StrTrim(u"\u00A0 a b "), u"a b"); }
TEST(StrTrimA, Rows) {
  EXPECT_EQ(StrTrimA(" \t\r\n a b \x01"), "a b");
  EXPECT_EQ(StrTrimA(std::string_view("\0a\0", 3)), "a");
  EXPECT_EQ(StrTrimA(" \n "), "");
  EXPECT_EQ(StrTrimA("\xA0"), "\xA0");
  EXPECT_EQ(StrTrimA(""), "");
}
TEST(StrTrimW, Rows) {
  EXPECT_EQ(StrTrimW(u"\u3000\u2028a b\u0085"), u"a b");
  EXPECT_EQ(StrTrimW(u"\x01 a"), u"\x01 a");
  EXPECT_EQ(StrTrimW(u"\u00A0"), u"");
  EXPECT_EQ(StrTrimW({}), u"");
}
TEST(StrTrimCharA, Rows) {
  EXPECT_EQ(StrTrimCharA("--a-b-", '-'), "a-b");
  EXPECT_EQ(StrTrimCharA("---", '-'), "");
  EXPECT_EQ(StrTrimCharA(" a ", '-'), " a ");
}
TEST(StrTrimCharsA, Rows) {
  EXPECT_EQ(StrTrimCharsA("-+a-+b+-", "+-"), "a-+b");
  EXPECT_EQ(StrTrimCharsA(" a ", ""), " a ");
}
TEST(StrTrimCharsW, Rows) {
  EXPECT_EQ(StrTrimCharsW(u"„účet“", u"„“"), u"účet");
  EXPECT_EQ(StrTrimCharsW(u"„“", u"„“"), u"");
}
TEST(TrimLeftByRefA, Rows) {
  std::string text = " \ta b ";
  TrimLeftByRefA(text);
  EXPECT_EQ(text, "a b ");
  text = "  ";
  TrimLeftByRefA(text);
  EXPECT_EQ(text, "");
}
TEST(TrimRightA, Rows) {
  EXPECT_EQ(TrimRightA(" a b \r\n"), " a b");
  EXPECT_EQ(TrimRightA("  "), "");
}
TEST(TrimRightByRefA, Rows) {
  std::string text = " a b \t";
  TrimRightByRefA(text);
  EXPECT_EQ(text, " a b");
}
TEST(TrimRightByRefW, Rows) {
  std::u16string text = u" a b \u00A0";
  TrimRightByRefW(text);
  EXPECT_EQ(text, u" a b");
  text.clear();
  TrimRightByRefW(text);
  EXPECT_EQ(text, u"");
}

TEST(StrTrimCompressA, Rows) {
  std::string text = "  a \t b\nc ";
  StrTrimCompressA(text);
  EXPECT_EQ(text, "a b c");
  text = " \r\n ";
  StrTrimCompressA(text);
  EXPECT_EQ(text, "");
  text = "1aa22bb3";
  StrTrimCompressA(text, CharIsDigitA, '#');
  EXPECT_EQ(text, "aa#bb");
}
TEST(StrTrimCompressW, Rows) {
  std::u16string text = u"\u00A0 Jan \u2003 Novák\r\n";
  StrTrimCompressW(text);
  EXPECT_EQ(text, u"Jan Novák");
  text = u"a  b";
  StrTrimCompressW(text, nullptr, u'_');
  EXPECT_EQ(text, u"a_b");
  text = u"\u0661a12b";
  StrTrimCompressW(text, CharIsDigitW, u'-');
  EXPECT_EQ(text, u"a-b");
  text.clear();
  StrTrimCompressW(text);
  EXPECT_EQ(text, u"");
}

}  // namespace
}  // namespace ravo::DIUtils

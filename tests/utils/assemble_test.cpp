#include <ravo/utils/strings/assemble.h>

#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(PadLeftA, Rows) {
  EXPECT_EQ(PadLeftA("42", 5, '0'), "00042");
  EXPECT_EQ(PadLeftA("12345", 5, '0'), "12345");
  EXPECT_EQ(PadLeftA("123456", 5, '0'), "123456");
  EXPECT_EQ(PadLeftA("", 2), "  ");
  EXPECT_EQ(PadLeftA("", 0), "");
}
TEST(PadLeftW, Rows) {
  EXPECT_EQ(PadLeftW(u"č", 3, u'ř'), u"řřč");
  EXPECT_EQ(PadLeftW(u"čččč", 3, u'ř'), u"čččč");
}
TEST(PadRightA, Rows) {
  EXPECT_EQ(PadRightA("42", 5, '.'), "42...");
  EXPECT_EQ(PadRightA("123456", 5, '.'), "123456");
}
TEST(PadRightW, Rows) {
  EXPECT_EQ(PadRightW(u"č", 3, u'ř'), u"čřř");
  EXPECT_EQ(PadRightW(u"", 0), u"");
}

TEST(Padding, ANegativeLengthReturnsTheText) {
  for (const std::ptrdiff_t length : {std::ptrdiff_t{-1}, std::numeric_limits<std::ptrdiff_t>::min()}) {
    EXPECT_EQ(PadLeftA("42", length, '0'), "42");
    EXPECT_EQ(PadLeftW(u"42", length, u'0'), u"42");
    EXPECT_EQ(PadRightA("42", length, '0'), "42");
    EXPECT_EQ(PadRightW(u"42", length, u'0'), u"42");
    EXPECT_EQ(PadRightW(u"", length), u"");
  }
}

// The standard library throws `std::length_error`; on 32 bits, an 8-bit text may have any length of
// `std::ptrdiff_t`.
TEST(Padding, ALengthThatNoTextHasIsARangeError) {
  constexpr auto kMost = std::numeric_limits<std::ptrdiff_t>::max();
  EXPECT_THROW(static_cast<void>(PadLeftW(u"42", kMost)), RangeError);
  EXPECT_THROW(static_cast<void>(PadRightW(u"42", kMost)), RangeError);
  if (std::cmp_greater(kMost, std::string().max_size())) {
    EXPECT_THROW(static_cast<void>(PadLeftA("42", kMost)), RangeError);
    EXPECT_THROW(static_cast<void>(PadRightA("42", kMost)), RangeError);
  }
}

TEST(ConCatBuf, IsTheWideMember) {
  std::u16string text = u"a";
  ConCatBuf(text, u"bcd", 2);
  EXPECT_EQ(text, u"abc");
}
TEST(ConCatBufA, Rows) {
  std::string text = "a";
  ConCatBufA(text, "bcd", 2);
  ConCatBufA(text, nullptr, 0);
  EXPECT_EQ(text, "abc");
}
TEST(ConCatBufW, AlsoFromItself) {
  std::u16string text = u"ab";
  ConCatBufW(text, nullptr, 0);
  for (int i = 0; i < 5; ++i) ConCatBufW(text, text.data(), text.size());
  EXPECT_EQ(text.size(), 64u);
  EXPECT_EQ(text.substr(60), u"abab");
}
TEST(ConCatChar, IsTheWideMember) {
  std::u16string text;
  ConCatChar(text, u'č');
  EXPECT_EQ(text, u"č");
}
TEST(ConCatCharA, Rows) {
  std::string text = "a";
  ConCatCharA(text, 'b');
  EXPECT_EQ(text, "ab");
}
TEST(ConCatCharW, Rows) {
  std::u16string text = u"a";
  ConCatCharW(text, u'\0');
  EXPECT_EQ(text, std::u16string_view(u"a\0", 2));
}
TEST(ConCatStr, IsTheWideMember) {
  std::u16string text = u"a";
  ConCatStr(text, u"č");
  EXPECT_EQ(text, u"ač");
}
TEST(ConCatStrA, Rows) {
  std::string text = "a";
  ConCatStrA(text, "");
  ConCatStrA(text, "bc");
  EXPECT_EQ(text, "abc");
}
TEST(ConCatStrW, AlsoToItself) {
  std::u16string text = u"ab";
  ConCatStrW(text, text);
  EXPECT_EQ(text, u"abab");
}

TEST(StrIncludeTrailingChar, IsTheWideMember) { EXPECT_EQ(StrIncludeTrailingChar(u"a", u'č'), u"ač"); }
TEST(StrIncludeTrailingCharA, Rows) {
  EXPECT_EQ(StrIncludeTrailingCharA("C:\\x", '\\'), "C:\\x\\");
  EXPECT_EQ(StrIncludeTrailingCharA("C:\\x\\", '\\'), "C:\\x\\");
  EXPECT_EQ(StrIncludeTrailingCharA("", '\\'), "\\");
}
TEST(StrIncludeTrailingCharW, Rows) {
  EXPECT_EQ(StrIncludeTrailingCharW(u"a/", u'/'), u"a/");
  EXPECT_EQ(StrIncludeTrailingCharW(u"a", u'/'), u"a/");
}

TEST(StrIsEmpty, IsTheWideMember) { EXPECT_TRUE(StrIsEmpty(u"")); }
TEST(StrIsEmptyA, Rows) {
  EXPECT_TRUE(StrIsEmptyA(""));
  EXPECT_FALSE(StrIsEmptyA(" "));
}
TEST(StrIsEmptyW, Rows) {
  EXPECT_TRUE(StrIsEmptyW({}));
  EXPECT_FALSE(StrIsEmptyW(u" "));
}
TEST(StrLenW, Rows) {
  EXPECT_EQ(StrLenW(u""), 0u);
  EXPECT_EQ(StrLenW(u"účet"), 4u);
  EXPECT_EQ(StrLenW(u"a\0b"), 1u);
  EXPECT_EQ(StrLenW(nullptr), 0u);
}

TEST(QuotedStrW, Rows) {
  EXPECT_EQ(QuotedStrW(u"", u'"'), u"\"\"");
  EXPECT_EQ(QuotedStrW(u"účet", u'\''), u"'účet'");
  EXPECT_EQ(QuotedStrW(u"a'b'", u'\''), u"'a''b'''");
  EXPECT_EQ(QuotedStrW(u"'''", u'\''), u"''''''''");
  EXPECT_EQ(QuotedStrW(u"a\"b"), u"\"a\"\"b\"");
}

}  // namespace
}  // namespace ravo::DIUtils

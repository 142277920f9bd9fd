#include <ravo/runtime/text.h>

#include <gtest/gtest.h>

namespace ravo {
namespace {

TEST(Text, Utf8RoundTrip) {
  struct Row {
    std::u16string_view utf16;
    std::string_view utf8;
  };
  constexpr Row rows[] = {
      {u"", ""},
      {u"Kč", "K\xC4\x8D"},
      {u"\u20AC", "\xE2\x82\xAC"},
      {u"\u0800", "\xE0\xA0\x80"},
      {u"\U0001F600", "\xF0\x9F\x98\x80"},
      {std::u16string_view(u"a\0b", 3), std::string_view("a\0b", 3)},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ToUtf8(row.utf16), row.utf8);
    EXPECT_EQ(FromUtf8(row.utf8), row.utf16);
  }
}

TEST(Text, IllFormedUtf8BecomesReplacementCharacters) {
  struct Row {
    std::string_view utf8;
    std::u16string_view utf16;
  };
  constexpr Row rows[] = {
      {"\x80", u"\uFFFD"},                                // a trailing byte alone
      {"\xC0\xAF", u"\uFFFD\uFFFD"},                      // overlong
      {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},            // overlong
      {"\xE2\x82", u"\uFFFD"},                            // truncated
      {"\xE2\x82z", u"\uFFFDz"},                          // interrupted by a letter
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},            // a surrogate
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // past U+10FFFF
      {"\xFF", u"\uFFFD"},
  };
  for (const Row& row : rows) EXPECT_EQ(FromUtf8(row.utf8), row.utf16);
}

TEST(Text, UnpairedSurrogatesBecomeReplacementCharacters) {
  EXPECT_EQ(ToUtf8(u"\xD800"), "\xEF\xBF\xBD");
  EXPECT_EQ(ToUtf8(u"\xDC00x"), "\xEF\xBF\xBDx");
  EXPECT_EQ(ToUtf8(u"\xD800\xD800\xDC00"), "\xEF\xBF\xBD\xF0\x90\x80\x80");
}

TEST(Text, TrimmedTakesBlanksAndControlsAtBothEnds) {
  EXPECT_EQ(Trimmed(u" \t\r\n a b \x01"), u"a b");
  EXPECT_EQ(Trimmed(std::u16string_view(u"\0a\0", 3)), u"a");
  EXPECT_EQ(Trimmed(u"\u00A0a"), u"\u00A0a");
  EXPECT_EQ(Trimmed(u" \t "), u"");
  EXPECT_EQ(Trimmed(u""), u"");
}

TEST(Text, SameAsciiTextFoldsOnlyAsciiLetters) {
  EXPECT_TRUE(SameAsciiText(u"FileVersion", u"fILEvERSION"));
  EXPECT_FALSE(SameAsciiText(u"Č", u"č"));
  EXPECT_FALSE(SameAsciiText(u"@", u"`"));
  EXPECT_FALSE(SameAsciiText(u"a", u"ab"));
}

TEST(Text, ReplaceFirstAndAll) {
  EXPECT_EQ(ReplaceFirst(u"a.b.c", u".", u","), u"a,b.c");
  EXPECT_EQ(ReplaceAll(u"a.b.c", u".", u"--"), u"a--b--c");
  EXPECT_EQ(ReplaceAll(u"aaa", u"aa", u"a"), u"aa");
  EXPECT_EQ(ReplaceFirst(u"abc", u"", u"x"), u"abc");
  EXPECT_EQ(ReplaceAll(u"abc", u"", u"x"), u"abc");
}

TEST(Text, IntegersToDecimalAndHexadecimal) {
  EXPECT_EQ(ToText(std::int64_t{0}), u"0");
  EXPECT_EQ(ToText(INT64_MIN), u"-9223372036854775808");
  EXPECT_EQ(ToText(INT64_MAX), u"9223372036854775807");
  EXPECT_EQ(ToText(UINT64_MAX), u"18446744073709551615");
  EXPECT_EQ(ToHex(0, 8), u"00000000");
  EXPECT_EQ(ToHex(0xCBF43926, 8), u"CBF43926");
  EXPECT_EQ(ToHex(0x123456789, 8), u"123456789");
}

TEST(Text, AsciiLetters) {
  for (const char16_t ch : {u'A', u'Z', u'a', u'z'}) EXPECT_TRUE(IsAsciiLetter(ch)) << int{ch};
  for (const char16_t ch : {u'@', u'[', u'`', u'{', u'0', u' ', u'\0', u'č', u'\uFF21'}) {
    EXPECT_FALSE(IsAsciiLetter(ch)) << int{ch};
  }
}

}  // namespace
}  // namespace ravo

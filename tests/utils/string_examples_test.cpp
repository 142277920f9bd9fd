// The examples of docs/strings.md, in its order; a check compares the two.
#include <ravo/DIUtils.h>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

template <class Change>
std::string After(std::string text, Change change) {
  change(text);
  return text;
}

TEST(StringExamples, Search) {
  EXPECT_EQ(StrPosW(u"cb", u"abcb"), 3u);
  EXPECT_EQ(StrPosBackA("ab", "abxab"), 4u);
  EXPECT_EQ(BufPosW(u"b", u"abc", 3), 2u);
  EXPECT_EQ(StrPosCharW(u'b', u"abcb"), 2u);
  EXPECT_EQ(StrPosCharBackW(u'b', u"abcb"), 4u);
  EXPECT_EQ(StrPosCharsA("xc", "abcb"), 3u);
  EXPECT_EQ(StrPosCharsBackA("bc", "abca"), 3u);
  EXPECT_EQ(StrPosNotCharsA("0", "0042"), 3u);
  EXPECT_EQ(StrPosNotCharsBackA(" ", "ab "), 2u);
  EXPECT_TRUE(StrContainsIW(u"ČE", u"účet"));
  EXPECT_TRUE(StrContainsCharA('b', "abc"));
  EXPECT_TRUE(StrHasCharsW(CharIsDigitW, u"a1"));
  EXPECT_TRUE(StrConsistsOfW(u"01", u"1001"));
  EXPECT_EQ(StrCountCharA('a', "banana"), 3u);
}
TEST(StringExamples, Comparison) {
  EXPECT_TRUE(StrSameIW(u"ÚČET", u"účet"));
  EXPECT_TRUE(BufSameA("abc", 3, "abcd", 3));
  EXPECT_TRUE(BufStrSameA("abc", 2, "ab"));
  EXPECT_TRUE(StrSameStartA("abc", "ab"));
  EXPECT_EQ(StrCompW(u"ab", u"abcd"), -2);
  EXPECT_LT(StrCompNumW(u"file9", u"file10"), 0);
  EXPECT_EQ(BufCompNumW(u"a9", 2, u"a10", 3), -1);
  EXPECT_TRUE(StrMatchWildW(u"abc", u"a*"));
  EXPECT_TRUE(StrMatchesA("abc", "??c"));
}
TEST(StringExamples, Change) {
  EXPECT_EQ(StrReplaceA("a.b", ".", "--"), "a--b");
  EXPECT_EQ(StrReplaceLoopA("a   b", "  ", " "), "a b");
  EXPECT_EQ(StrReplaceCharA("1,5", ',', '.'), "1.5");
  EXPECT_EQ(StrRemoveFromToIA("a<b>c", "<", ">"), "ac");
  EXPECT_EQ(StrRemoveSpacingA("1 234"), "1234");
  EXPECT_EQ(StrTrimA(" a "), "a");
  EXPECT_EQ(StrTrimCharA("--a-", '-'), "a");
  EXPECT_EQ(After(" a", [](std::string& text) { TrimLeftByRefA(text); }), "a");
  EXPECT_EQ(TrimRightA("a "), "a");
  EXPECT_EQ(After(" a  b", [](std::string& text) { StrTrimCompressA(text); }), "a b");
  EXPECT_EQ(StrToUpperW(u"účet"), u"ÚČET");
  EXPECT_EQ(After("a1", [](std::string& text) { StrToUpperInPlaceA(text); }), "A1");
  EXPECT_EQ(StrToLowerW(u"ÚČET"), u"účet");
  EXPECT_EQ(After("A1", [](std::string& text) { StrToLowerInPlaceA(text); }), "a1");
  EXPECT_EQ(ProperCaseW(u"jan NOVÁK"), u"Jan Novák");
  EXPECT_EQ(After("jan", [](std::string& text) { ProperCaseByRefA(text); }), "Jan");
  EXPECT_EQ(PadLeftA("42", 5, '0'), "00042");
  EXPECT_EQ(After("a", [](std::string& text) { ConCatStrA(text, "b"); }), "ab");
  EXPECT_EQ(StrIncludeTrailingCharA("a", '/'), "a/");
  EXPECT_EQ(QuotedStrW(u"a'b", u'\''), u"'a''b'");
}
TEST(StringExamples, WordsAndLengths) {
  std::size_t position = 1;
  EXPECT_EQ(ExtractWordA("ab, cd", ", ", 3), "cd");
  EXPECT_EQ(ExtractNextWordA("ab, cd", ", ", position), "ab");
  EXPECT_EQ(ExtractWordStartsA("Jan Amos"), "JA");
  EXPECT_TRUE(StrIsEmptyA(""));
  EXPECT_EQ(StrLenW(u"ab"), 2u);
}
TEST(StringExamples, Numbers) {
  std::size_t error = 0;
  std::int32_t value = 0;
  EXPECT_EQ(ValIntA("12", error), 12);
  EXPECT_TRUE(TryStrToIntW(u"$1F", value));
  EXPECT_EQ(StrToIntDefW(u"x", -1), -1);
  EXPECT_EQ(HexToIntA("1f"), 31);
  EXPECT_EQ(HexCodePointToInt('F'), 15);
  EXPECT_EQ(IntToStrA(-5), "-5");
  EXPECT_EQ(IntToHexA(255, 4), "00FF");
}
TEST(StringExamples, Encodings) {
  EXPECT_EQ(StrCountUtf8Chars("\xC4\x8D"), 1u);
  EXPECT_EQ(StrDecodeUtf8("\xC4\x8D"), u"č");
  EXPECT_EQ(StrEncodeUtf8(u"č"), "\xC4\x8D");
  EXPECT_EQ(WStrToAStr(u"č"), "\xE8");
  EXPECT_EQ(StrEncodeUrlA("a b&c"), "a+b%26c");
  EXPECT_EQ(StrDecodeUrlA("a+b%26c"), "a b&c");
  EXPECT_EQ(StrTimUriFragmentA("x#y"), "x");
  EXPECT_EQ(StrExtractUriFragmentW(u"x#y"), u"y");
}
TEST(StringExamples, Characters) {
  EXPECT_TRUE(CharIsCrLfW(u'\n'));
  EXPECT_TRUE(CharIsDigitW(u'7'));
  EXPECT_TRUE(CharIsHexDigitW(u'f'));
  EXPECT_TRUE(CharIsAlphaW(u'č'));
  EXPECT_TRUE(CharIsWhiteSpaceW(0xA0));
  EXPECT_TRUE(CharIsWhiteSpaceGtW(u'>'));
  EXPECT_TRUE(IsCharQuoteW(u'"'));
  EXPECT_TRUE(IsCharWordSeparatorW(u'-'));
  EXPECT_EQ(CharDecomposeHangulW(0xAC00).size(), 2u);
  EXPECT_TRUE(CharIn(u'a', u"ab"));
  EXPECT_TRUE(CharIsLetterUpperCaseW(u'Č'));
  EXPECT_TRUE(CharIsLetterCommonW(u'ř'));
  EXPECT_TRUE(CharIsMarkW(0x300));
  EXPECT_TRUE(CharIsNumber_OtherW(0xBD));
  EXPECT_TRUE(CharIsPunctuationW(u'!'));
  EXPECT_TRUE(CharIsSymbolCurrencyW(u'€'));
  EXPECT_TRUE(CharIsSeparatorSpaceW(u' '));
  EXPECT_TRUE(CharIsOtherControlW(u'\n'));
  EXPECT_EQ(CharCanonicalCombiningClassW(0x300), 230);
  EXPECT_EQ(CharToUpperW(u'č'), u'Č');
  EXPECT_EQ(CharDecomposeCanonicalW(0xC0).size(), 2u);
  EXPECT_EQ(CharDecomposeCompatibleStrW(0xFB01), u"fi");
}

}  // namespace
}  // namespace ravo::DIUtils

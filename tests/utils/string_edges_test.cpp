// The results of every family for an empty text and for positions past the end. A default view has a null
// pointer.
#include <ravo/DIUtils.h>

#include <limits>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

using A = std::string_view;
using W = std::u16string_view;
constexpr std::size_t kFar = std::numeric_limits<std::size_t>::max();
constexpr std::size_t kBeyond[] = {4, 5, kFar - 1, kFar};

TEST(StringEdges, NothingIsFoundInNoText) {
  for (const std::size_t start : {std::size_t{0}, std::size_t{1}, std::size_t{2}, kFar}) {
    EXPECT_EQ(StrPosA("a", A(), start) + StrPosIA("a", A(), start), 0u);
    EXPECT_EQ(StrPosW(u"a", W(), start) + StrPosIW(u"a", W(), start), 0u);
    EXPECT_EQ(StrPosBackA("a", A(), start) + StrPosBackIA("a", A(), start), 0u);
    EXPECT_EQ(StrPosCharA('a', A(), start) + StrPosCharW(u'a', W(), start), 0u);
    EXPECT_EQ(StrPosCharBackA('a', A(), start) + StrPosCharBackW(u'a', W(), start), 0u);
    EXPECT_EQ(StrPosCharsA("a", A(), start) + StrPosCharsW(u"a", W(), start), 0u);
    EXPECT_EQ(StrPosCharsBackA("a", A(), start) + StrPosNotCharsBackA("a", A(), start), 0u);
    EXPECT_EQ(StrPosNotCharsA("a", A(), start) + StrPosNotCharsW(u"a", W(), start), 0u);
    EXPECT_EQ(BufPosCharsA("a", nullptr, 0, start) + BufPosCharsW(u"a", nullptr, 0, start), 0u);
  }
}
TEST(StringEdges, NoSearchTextAndNoSetAreNeverFound) {
  EXPECT_EQ(StrPosA(A(), "abc") + StrPosIA(A(), "abc") + StrPosBackA(A(), "abc") + StrPosBackIA(A(), "abc"),
            0u);
  EXPECT_EQ(StrPosW(W(), u"abc") + StrPosIW(W(), u"abc"), 0u);
  EXPECT_EQ(StrPosCharsA(A(), "abc") + StrPosCharsW(W(), u"abc") + StrPosCharsBackA(A(), "abc"), 0u);
  EXPECT_EQ(StrPosNotCharsA(A(), "abc"), 1u);
  EXPECT_EQ(StrPosNotCharsBackA(A(), "abc"), 3u);
  EXPECT_FALSE(CharIn('a', A()));
  EXPECT_FALSE(CharIn(u'a', W()));
}
TEST(StringEdges, BeyondTheEndForwardSearchFindsNothing) {
  for (const std::size_t start : kBeyond) {
    EXPECT_EQ(StrPosA("c", "abc", start) + StrPosIA("c", "abc", start), 0u);
    EXPECT_EQ(StrPosW(u"c", u"abc", start) + StrPosIW(u"C", u"abc", start), 0u);
    EXPECT_EQ(StrPosIW(u"\u03C3", u"ab\u03C3", start), 0u);
    EXPECT_EQ(StrPosCharA('c', "abc", start) + StrPosCharW(u'c', u"abc", start), 0u);
    EXPECT_EQ(StrPosCharsA("c", "abc", start) + StrPosCharsW(u"c", u"abc", start), 0u);
    EXPECT_EQ(StrPosNotCharsA("x", "abc", start) + StrPosNotCharsW(u"x", u"abc", start), 0u);
    EXPECT_EQ(BufPosW(u"c", u"abc", 3, start) + BufPosIA("c", "abc", 3, start), 0u);
  }
}
TEST(StringEdges, BeyondTheEndBackwardSearchBeginsAtTheEnd) {
  for (const std::size_t start : kBeyond) {
    EXPECT_EQ(StrPosBackA("c", "abc", start), 3u);
    EXPECT_EQ(StrPosBackIA("C", "abc", start), 3u);
    EXPECT_EQ(StrPosCharBackA('c', "abc", start), 3u);
    EXPECT_EQ(StrPosCharBackW(u'c', u"abc", start), 3u);
    EXPECT_EQ(StrPosCharsBackA("c", "abc", start), 3u);
    EXPECT_EQ(StrPosNotCharsBackA("x", "abc", start), 3u);
  }
}
TEST(StringEdges, BeyondTheEndThereAreNoWords) {
  for (const std::size_t start : kBeyond) {
    std::size_t position = start;
    EXPECT_EQ(ExtractNextWordW(u"abc", u" ", position), u"");
    EXPECT_EQ(position, 4u);
    EXPECT_EQ(ExtractWordA("abc", " ", start), "");
  }
}

TEST(StringEdges, NoTextsAreTheSame) {
  EXPECT_TRUE(StrSameA(A(), "") && StrSameW(W(), u"") && StrSameIA(A(), A()) && StrSameIW(W(), W()));
  EXPECT_TRUE(BufSameA(nullptr, 0, "", 0) && BufSameIA(nullptr, 0, nullptr, 0));
  EXPECT_TRUE(BufSameW(nullptr, 0, u"", 0) && BufSameIW(u"", 0, nullptr, 0));
  EXPECT_TRUE(BufStrSameA(nullptr, 0, A()) && BufStrSameIA(nullptr, 0, A()));
  EXPECT_TRUE(BufStrSameW(nullptr, 0, W()) && BufStrSameIW(nullptr, 0, W()));
  EXPECT_TRUE(StrSameStartA(A(), A()) && StrSameStartIW(u"a", W()) && !StrSameStartW(W(), u"a"));
  EXPECT_EQ(StrCompA(A(), A()) + StrCompIA(A(), A()) + StrCompW(W(), W()) + StrCompIW(W(), W()), 0);
  EXPECT_EQ(StrCompNumA(A(), A()) + StrCompNumIA(A(), A()) + StrCompNumIW(W(), W()), 0);
  EXPECT_TRUE(StrMatchWildA(A(), A()) && StrMatchWildIA(A(), "*") && StrMatchWildW(W(), W()));
  EXPECT_TRUE(StrMatchWildIW(W(), u"**") && StrMatchesA(A(), A()) && !StrMatchesIA("a", A()));
}

TEST(StringEdges, NoTextStaysNoText) {
  EXPECT_EQ(StrReplaceA(A(), A(), A()) + StrReplaceIA(A(), "a", "b") + StrReplaceLoopA(A(), "a", "b"), "");
  EXPECT_EQ(StrReplaceIW(W(), W(), W()) + StrReplaceLoopIW(W(), u"a", u"b"), u"");
  EXPECT_EQ(StrReplaceCharA(A(), 'a', 'b') + StrRemoveFromToIA(A(), A(), A()) + StrRemoveSpacingA(A()), "");
  EXPECT_EQ(StrReplaceCharW(W(), u'a', u'b') + StrRemoveFromToIW(W(), W(), W()) + StrRemoveSpacingW(W()),
            u"");
  EXPECT_EQ(StrTrimA(A()) + StrTrimCharA(A(), ' ') + StrTrimCharsA(A(), A()) + TrimRightA(A()), "");
  EXPECT_EQ(StrTrimW(W()) + StrTrimCharsW(W(), W()), u"");
  EXPECT_EQ(StrToUpperA(A()) + StrToLowerA(A()) + ProperCaseA(A()) + PadLeftA(A(), 0) + PadRightA(A(), 0),
            "");
  EXPECT_EQ(StrToUpperW(W()) + StrToLowerW(W()) + ProperCaseW(W()) + PadLeftW(W(), 0) + PadRightW(W(), 0),
            u"");
  EXPECT_EQ(ExtractWordA(A(), A()) + ExtractWordStartsA(A()), "");
  EXPECT_EQ(ExtractWordStartsW(W()), u"");
  EXPECT_EQ(StrEncodeUrlA(A()) + StrDecodeUrlA(A()) + StrTimUriFragmentA(A()) + StrEncodeUtf8(W()), "");
  EXPECT_EQ(StrTrimUriFragmentW(W()) + StrExtractUriFragmentW(W()) + StrDecodeUtf8(A()), u"");
  EXPECT_EQ(StrTrimCharsW(u"abc", W()), u"abc");
  EXPECT_EQ(WStrToAStr(W()) + WBufToAStr(nullptr, 0), "");
}

TEST(StringEdges, NoTextChangedInPlaceStaysNoText) {
  std::string bytes;
  std::u16string units;
  TrimLeftByRefA(bytes);
  TrimRightByRefA(bytes);
  StrTrimCompressA(bytes);
  StrToUpperInPlaceA(bytes);
  StrToLowerInPlaceA(bytes);
  ProperCaseByRefA(bytes);
  ConCatBufA(bytes, nullptr, 0);
  ConCatStrA(bytes, A());
  EXPECT_EQ(bytes, "");
  TrimRightByRefW(units);
  StrTrimCompressW(units);
  StrToUpperInPlaceW(units);
  StrToLowerInPlaceW(units);
  ProperCaseByRefW(units);
  ConCatBufW(units, nullptr, 0);
  ConCatStrW(units, W());
  EXPECT_EQ(units, u"");
}

}  // namespace
}  // namespace ravo::DIUtils

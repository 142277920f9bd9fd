#include "support/guarded_buffer.h"
#include <ravo/utils/strings/search.h>

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrPosW, Rows) {
  EXPECT_EQ(StrPosW(u"b", u"abcb"), 2u);
  EXPECT_EQ(StrPosW(u"b", u"abcb", 3), 4u);
  EXPECT_EQ(StrPosW(u"cb", u"abcb"), 3u);
  EXPECT_EQ(StrPosW(u"abcb", u"abcb"), 1u);
  EXPECT_EQ(StrPosW(u"abcbx", u"abcb"), 0u);
  EXPECT_EQ(StrPosW(u"B", u"abcb"), 0u);
  EXPECT_EQ(StrPosW(u"aab", u"aaab"), 2u);
  EXPECT_EQ(StrPosW(u"a", u"abcb", 0), 1u);
}

TEST(StrPosW, EmptyTextsAndPositionsBeyondTheEnd) {
  EXPECT_EQ(StrPosW(u"", u"abc"), 0u);
  EXPECT_EQ(StrPosW(u"", u""), 0u);
  EXPECT_EQ(StrPosW(u"a", u""), 0u);
  EXPECT_EQ(StrPosW({}, {}), 0u);
  EXPECT_EQ(StrPosW(u"c", u"abc", 3), 3u);
  EXPECT_EQ(StrPosW(u"c", u"abc", 4), 0u);
  EXPECT_EQ(StrPosW(u"c", u"abc", static_cast<std::size_t>(-1)), 0u);
}

TEST(StrPos, IsTheWideMember) {
  EXPECT_EQ(StrPos(u"č", u"účet"), 2u);
  EXPECT_EQ(StrPos(u"Č", u"účet"), 0u);
  EXPECT_EQ(StrPos(u"e", u"eee", 3), 3u);
}

TEST(StrPosA, Rows) {
  EXPECT_EQ(StrPosA("\xE8",
                    "\xFA\xE8"
                    "et"),
            2u);
  EXPECT_EQ(StrPosA("et",
                    "\xFA\xE8"
                    "etet",
                    4),
            5u);
  EXPECT_EQ(StrPosA("", "abc"), 0u);
  EXPECT_EQ(StrPosA("x", "abc", 9), 0u);
}

TEST(StrPosIW, FoldsBothSides) {
  EXPECT_EQ(StrPosIW(u"ČET", u"Účet"), 2u);
  EXPECT_EQ(StrPosIW(u"účet", u"ÚČET"), 1u);
  EXPECT_EQ(StrPosIW(u"\u03C2", u"ab\u03A3"), 3u);
  EXPECT_EQ(StrPosIW(u"x", u"Účet"), 0u);
  EXPECT_EQ(StrPosIW(u"", u"Účet"), 0u);
  EXPECT_EQ(StrPosIW(u"a", u"AbA", 2), 3u);
}

TEST(StrPosI, IsTheWideMember) { EXPECT_EQ(StrPosI(u"ČET", u"Účet"), 2u); }

TEST(StrPosIA, FoldsAsciiAlone) {
  EXPECT_EQ(StrPosIA("ET",
                     "\xFA\xE8"
                     "et"),
            3u);
  EXPECT_EQ(StrPosIA("\xC8",
                     "\xFA\xE8"
                     "et"),
            0u);
  EXPECT_EQ(StrPosIA("[", "a{"), 0u);
}

TEST(StrPosBackA, LastThatBeginsAtTheStartOrBefore) {
  EXPECT_EQ(StrPosBackA("ab", "abxab"), 4u);
  EXPECT_EQ(StrPosBackA("ab", "abxab", 4), 4u);
  EXPECT_EQ(StrPosBackA("ab", "abxab", 3), 1u);
  EXPECT_EQ(StrPosBackA("ab", "abxab", 0), 1u);
  EXPECT_EQ(StrPosBackA("aa", "aaa"), 2u);
  EXPECT_EQ(StrPosBackA("AB", "abxab"), 0u);
  EXPECT_EQ(StrPosBackA("", "abc"), 0u);
  EXPECT_EQ(StrPosBackA("abcd", "abc"), 0u);
}

TEST(StrPosBackIA, IgnoresCase) {
  EXPECT_EQ(StrPosBackIA("AB", "abxab"), 4u);
  EXPECT_EQ(StrPosBackIA("ab", "ABxaB", 3), 1u);
}

TEST(BufPosA, TakesAPointerAndALength) {
  EXPECT_EQ(BufPosA("b", "abc", 3), 2u);
  EXPECT_EQ(BufPosA("c", "abc", 2), 0u);
  EXPECT_EQ(BufPosA("b", nullptr, 0), 0u);
  EXPECT_EQ(BufPosA("b", "abcb", 4, 3), 4u);
}
TEST(BufPosIA, TakesAPointerAndALength) {
  EXPECT_EQ(BufPosIA("B", "abc", 3), 2u);
  EXPECT_EQ(BufPosIA("B", nullptr, 0), 0u);
}
TEST(BufPosW, TakesAPointerAndALength) {
  EXPECT_EQ(BufPosW(u"b", u"abc", 3), 2u);
  EXPECT_EQ(BufPosW(u"c", u"abc", 2), 0u);
  EXPECT_EQ(BufPosW(u"b", nullptr, 0), 0u);
}
TEST(BufPosIW, TakesAPointerAndALength) {
  EXPECT_EQ(BufPosIW(u"Č", u"účet", 4), 2u);
  EXPECT_EQ(BufPosIW(u"b", nullptr, 0), 0u);
  EXPECT_EQ(BufPosIW(u"B", u"bab", 3, 2), 3u);
}

TEST(StrContains, IsTheWideMember) {
  EXPECT_TRUE(StrContains(u"če", u"účet"));
  EXPECT_FALSE(StrContains(u"ČE", u"účet"));
}
TEST(StrContainsA, Rows) {
  EXPECT_TRUE(StrContainsA("bc", "abc"));
  EXPECT_FALSE(StrContainsA("BC", "abc"));
  EXPECT_FALSE(StrContainsA("", "abc"));
}
TEST(StrContainsW, Rows) {
  EXPECT_TRUE(StrContainsW(u"bc", u"abc"));
  EXPECT_FALSE(StrContainsW(u"", u""));
}
TEST(StrContainsI, IsTheWideMember) { EXPECT_TRUE(StrContainsI(u"ČE", u"účet")); }
TEST(StrContainsIA, Rows) {
  EXPECT_TRUE(StrContainsIA("BC", "abc"));
  EXPECT_FALSE(StrContainsIA("BD", "abc"));
}
TEST(StrContainsIW, Rows) {
  EXPECT_TRUE(StrContainsIW(u"ČE", u"účet"));
  EXPECT_FALSE(StrContainsIW(u"ČA", u"účet"));
}

// Texts of few letters, so that near hits are common; the standard library is the witness.
template <class Char>
std::basic_string<Char> RandomText(std::mt19937& random, std::size_t length, unsigned letters) {
  std::basic_string<Char> text;
  while (text.size() < length) text.push_back(static_cast<Char>('a' + random() % letters));
  return text;
}

TEST(StrPosW, FindsWhatTheStandardLibraryFinds) {
  std::mt19937 random(7);
  for (unsigned round = 0; round < 20000; ++round) {
    const auto text = RandomText<char16_t>(random, random() % 90, 2 + round % 3);
    const auto search = RandomText<char16_t>(random, 1 + random() % 6, 2 + round % 3);
    const std::size_t start = 1 + random() % 40;
    const std::size_t found = text.find(search, start - 1);
    const std::size_t wanted = found == std::u16string::npos ? 0 : found + 1;
    ASSERT_EQ(StrPosW(search, text, start), wanted);
    ASSERT_EQ(StrPosIW(search, text, start), wanted);
    const std::string narrow(text.begin(), text.end());
    const std::string narrow_search(search.begin(), search.end());
    ASSERT_EQ(StrPosA(narrow_search, narrow, start), wanted);
    ASSERT_EQ(StrPosIA(narrow_search, narrow, start), wanted);
    const std::size_t back = narrow.rfind(narrow_search, start - 1);
    ASSERT_EQ(StrPosBackA(narrow_search, narrow, start), back == std::string::npos ? 0 : back + 1);
  }
}

TEST(StrPosW, ReadsNothingBehindTheText) {
  const std::u16string text = u"abcabcabcabcabcabcabcabcabcabcabcabcabcabcabcd";
  const test::GuardedBuffer buffer(std::as_bytes(std::span(text)));
  const auto* end = reinterpret_cast<const char16_t*>(buffer.Bytes().data() + buffer.Bytes().size());
  for (std::size_t length = 0; length <= text.size(); ++length) {
    const std::u16string_view tail(end - length, length);
    EXPECT_EQ(StrPosW(u"cd", tail), length < 2 ? 0 : length - 1);
    EXPECT_EQ(StrPosW(u"dx", tail), 0u);
    EXPECT_EQ(StrPosW(u"d", tail), length);
    EXPECT_EQ(StrPosIW(u"CD", tail), length < 2 ? 0 : length - 1);
    EXPECT_EQ(StrPosIW(u"dx", tail), 0u);
  }
}

}  // namespace
}  // namespace ravo::DIUtils

#include <ravo/utils/strings/natural_order.h>

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrCompNumW, Rows) {
  EXPECT_LT(StrCompNumW(u"file9", u"file10"), 0);
  EXPECT_EQ(StrCompNumW(u"file10", u"file9"), 1);
  EXPECT_EQ(StrCompNumW(u"file10", u"file10"), 0);
  EXPECT_EQ(StrCompNumW(u"", u"abc"), -3);
  EXPECT_EQ(StrCompNumW(u"abc", u""), 3);
  EXPECT_EQ(StrCompNumW(u"", u""), 0);
  EXPECT_LT(StrCompNumW(u"a9", u"a10"), 0);
  EXPECT_GT(StrCompNumW(u"a123", u"a13"), 0);
  EXPECT_EQ(StrCompNumW(u"a01", u"a1"), u'0' - u'1');
  EXPECT_EQ(StrCompNumW(u"12", u"13"), -1);
  EXPECT_EQ(StrCompNumW(u"12x", u"13"), -1);
  EXPECT_EQ(StrCompNumW(u"a", u"c"), -2);
  EXPECT_EQ(StrCompNumW(u"a1", u"ab"), u'1' - u'b');
  EXPECT_EQ(StrCompNumW(u"ab", u"abcd"), -2);
  EXPECT_EQ(StrCompNumW(u"0", u"00"), -1);
  EXPECT_EQ(StrCompNumW(u"a", u"B"), u'a' - u'B');
}

// The neighbours of the digits are not digits.
TEST(StrCompNumW, DigitsBeginAtZeroAndEndAtNine) {
  EXPECT_EQ(StrCompNumW(u"/9", u"/10"), -1);
  EXPECT_EQ(StrCompNumW(u"a/", u"a:"), u'/' - u':');
  EXPECT_EQ(StrCompNumW(u"a/9", u"a/12"), -1);
  EXPECT_EQ(StrCompNumW(u"a 9", u"a:1"), u' ' - u':');
}

TEST(StrCompNumW, DigitsOfEveryScript) {
  EXPECT_LT(StrCompNumW(u"\u0669", u"\u0661\u0660"), 0);
  EXPECT_LT(StrCompNumW(u"a9", u"a\u0661\u0662"), 0);
}

TEST(StrCompNumW, AZeroInsideANumberIsLost) {
  EXPECT_LT(StrCompNumW(u"105", u"15"), 0);
  EXPECT_LT(StrCompNumW(u"15", u"20"), 0);
  EXPECT_LT(StrCompNumW(u"20", u"105"), 0);
}

TEST(StrCompNum, IsTheWideMember) { EXPECT_LT(StrCompNum(u"č9", u"č10"), 0); }
TEST(StrCompNumA, Rows) {
  EXPECT_LT(StrCompNumA("file9", "file10"), 0);
  EXPECT_EQ(StrCompNumA("file10", "file9"), 1);
  EXPECT_EQ(StrCompNumA("\xFF", "a"), 255 - 'a');
  EXPECT_EQ(StrCompNumA("a01", "a1"), -1);
}
TEST(StrCompNumI, IsTheWideMember) { EXPECT_LT(StrCompNumI(u"Č9", u"č10"), 0); }
TEST(StrCompNumIA, Rows) {
  EXPECT_LT(StrCompNumIA("FILE9", "file10"), 0);
  EXPECT_EQ(StrCompNumIA("FILE9", "file9"), 0);
  EXPECT_EQ(StrCompNumIA("\xC8", "\xE8"), 0xC8 - 0xE8);
}
TEST(StrCompNumIW, Rows) {
  EXPECT_LT(StrCompNumIW(u"ÚČET9", u"účet10"), 0);
  EXPECT_EQ(StrCompNumIW(u"ÚČET9", u"účet9"), 0);
  EXPECT_EQ(StrCompNumIW(u"B", u"a"), 1);
}
TEST(BufCompNumW, Rows) {
  EXPECT_EQ(BufCompNumW(u"a9", 2, u"a10", 2), 8);
  EXPECT_EQ(BufCompNumW(u"a9", 2, u"a10", 3), -1);
  EXPECT_EQ(BufCompNumW(nullptr, 0, u"a10", 3), -3);
  EXPECT_EQ(BufCompNumW(nullptr, 0, nullptr, 0), 0);
}
TEST(BufCompNumIW, Rows) {
  EXPECT_EQ(BufCompNumIW(u"Č9", 2, u"č10", 3), -1);
  EXPECT_EQ(BufCompNumIW(nullptr, 0, nullptr, 0), 0);
}

// The steps of the order, one by one.
std::ptrdiff_t Steps(std::string p1, std::string p2) {
  const auto digit = [](const std::string& text) {
    return !text.empty() && text[0] >= '0' && text[0] <= '9';
  };
  const auto rest = [](const std::string& text) { return static_cast<std::ptrdiff_t>(text.size()); };
  if (p1.empty() || p2.empty()) return rest(p1) - rest(p2);
  while (p1[0] == p2[0]) {
    if (p1.size() == 1 || p2.size() == 1) return rest(p1) - rest(p2);
    p1.erase(0, 1);
    p2.erase(0, 1);
  }
  if (!digit(p1) || !digit(p2)) return p1[0] - p2[0];
  std::ptrdiff_t tie = p1[0] - p2[0];
  while (!p1.empty() && p1[0] == '0') p1.erase(0, 1);
  while (!p2.empty() && p2[0] == '0') p2.erase(0, 1);
  while (digit(p1) && digit(p2)) {
    if (p1[0] != p2[0]) {
      tie = p1[0] - p2[0];
      break;
    }
    p1.erase(0, 1);
    p2.erase(0, 1);
  }
  while (digit(p1) && digit(p2)) {
    p1.erase(0, 1);
    p2.erase(0, 1);
  }
  if (digit(p1)) return 1;
  return digit(p2) ? -1 : tie;
}

TEST(StrCompNumW, FollowsTheSteps) {
  std::mt19937 random(11);
  const auto text = [&random] {
    std::string made;
    while (made.size() < random() % 8) made.push_back("0015a"[random() % 5]);
    return made;
  };
  for (int round = 0; round < 100000; ++round) {
    const std::string left = text();
    const std::string right = text();
    const std::u16string wide_left(left.begin(), left.end());
    const std::u16string wide_right(right.begin(), right.end());
    ASSERT_EQ(StrCompNumW(wide_left, wide_right), Steps(left, right)) << left << ' ' << right;
    ASSERT_EQ(StrCompNumIW(wide_left, wide_right), Steps(left, right)) << left << ' ' << right;
    ASSERT_EQ(StrCompNumA(left, right), Steps(left, right)) << left << ' ' << right;
    ASSERT_EQ(StrCompNumA(left, right) < 0, StrCompNumA(right, left) > 0) << left << ' ' << right;
  }
}

}  // namespace
}  // namespace ravo::DIUtils

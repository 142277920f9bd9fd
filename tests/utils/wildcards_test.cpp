#include <ravo/utils/strings/wildcards.h>

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUtils {
namespace {

TEST(StrMatchWildW, Rows) {
  struct Row {
    std::u16string_view text;
    std::u16string_view mask;
    bool matches;
  };
  constexpr Row rows[] = {
      {u"abc", u"a*", true},
      {u"abc", u"a?c", true},
      {u"abc", u"a?", false},
      {u"", u"*", true},
      {u"", u"", true},
      {u"", u"?", false},
      {u"a", u"", false},
      {u"abc", u"*", true},
      {u"abc", u"***", true},
      {u"abc", u"*c", true},
      {u"abc", u"*b", false},
      {u"abc", u"*b*", true},
      {u"abcabd", u"*ab?", true},
      {u"aXbXc", u"a*X*c", true},
      {u"aXc", u"a*X*X*c", false},
      {u"abc", u"A*", false},
      {u"abab", u"*ab", true},
      {u"aab", u"*a?b", true},
      {u"ab", u"ab*ab", false},
      {u"aba", u"ab*ba", false},
      {u"a?c", u"a?c", true},
      {u"faktura-2024.xml", u"*-20??.x*", true},
  };
  for (const Row& row : rows) EXPECT_EQ(StrMatchWildW(row.text, row.mask, u'*', u'?'), row.matches);
}

TEST(StrMatchWildW, TheCallerNamesTheCharacters) {
  EXPECT_TRUE(StrMatchWildW(u"abc", u"a%", u'%', u'_'));
  EXPECT_TRUE(StrMatchWildW(u"abc", u"_b_", u'%', u'_'));
  EXPECT_FALSE(StrMatchWildW(u"abc", u"a*", u'%', u'_'));
  EXPECT_TRUE(StrMatchWildW(u"abc", u"a*", u'*', u'*'));
}

TEST(StrMatchWild, IsTheWideMember) { EXPECT_TRUE(StrMatchWild(u"účet", u"*č?t")); }
TEST(StrMatchWildA, Rows) {
  EXPECT_TRUE(StrMatchWildA("abc", "a*c"));
  EXPECT_TRUE(
      StrMatchWildA("a\xE8"
                    "c",
                    "a?c"));
  EXPECT_FALSE(StrMatchWildA("abc", "A*c"));
}
TEST(StrMatchWildI, IsTheWideMember) { EXPECT_TRUE(StrMatchWildI(u"ÚČET", u"ú*t")); }
TEST(StrMatchWildIA, Rows) {
  EXPECT_TRUE(StrMatchWildIA("ABC", "a*C"));
  EXPECT_FALSE(StrMatchWildIA("\xC8", "\xE8"));
}
TEST(StrMatchWildIW, Rows) {
  EXPECT_TRUE(StrMatchWildIW(u"Příjemka", u"PŘÍ*KA"));
  EXPECT_TRUE(StrMatchWildIW(u"xČž", u"*č?"));
  EXPECT_FALSE(StrMatchWildIW(u"Příjemka", u"PRI*"));
}
TEST(StrMatchesA, StarAndQuestionMark) {
  EXPECT_TRUE(StrMatchesA("abc", "a*"));
  EXPECT_TRUE(StrMatchesA("abc", "??c"));
  EXPECT_FALSE(StrMatchesA("abc", "A??"));
}
TEST(StrMatchesIA, StarAndQuestionMark) {
  EXPECT_TRUE(StrMatchesIA("abc", "A??"));
  EXPECT_FALSE(StrMatchesIA("abc", "A?"));
}

// The definition: a wild character matches nothing, or one more character.
bool Plainly(std::string_view text, std::string_view mask) {
  if (mask.empty()) return text.empty();
  if (mask[0] == '*')
    return Plainly(text, mask.substr(1)) || (!text.empty() && Plainly(text.substr(1), mask));
  return !text.empty() && (mask[0] == '?' || mask[0] == text[0]) && Plainly(text.substr(1), mask.substr(1));
}

TEST(StrMatchWildW, IsTheDefinition) {
  std::mt19937 random(3);
  for (int round = 0; round < 100000; ++round) {
    std::string text;
    std::string mask;
    while (text.size() < random() % 12) text.push_back("ab"[random() % 2]);
    while (mask.size() < random() % 8) mask.push_back("aabb**?"[random() % 7]);
    const bool wanted = Plainly(text, mask);
    ASSERT_EQ(StrMatchesA(text, mask), wanted) << text << ' ' << mask;
    const std::u16string wide(text.begin(), text.end());
    const std::u16string wide_mask(mask.begin(), mask.end());
    ASSERT_EQ(StrMatchWildW(wide, wide_mask), wanted) << text << ' ' << mask;
    ASSERT_EQ(StrMatchWildIW(wide, wide_mask), wanted) << text << ' ' << mask;
  }
}

// With backtracking at every wild character, this mask would take exponential time.
TEST(StrMatchWildW, NoMaskIsExponential) {
  const std::u16string text(2000, u'a');
  std::u16string mask;
  for (int i = 0; i < 100; ++i) mask += u"*a";
  EXPECT_FALSE(StrMatchWildW(text, mask + u"*b"));
  EXPECT_TRUE(StrMatchWildW(text, mask + u"*"));
}

}  // namespace
}  // namespace ravo::DIUtils

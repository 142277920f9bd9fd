#include "support/scratch_folder.h"
#include <ravo/platform/posix/file_search.h>

#include <filesystem>

#include <gtest/gtest.h>

namespace ravo::platform::posix {
namespace {

TEST(MatchesPattern, StarsAndQuestionMarks) {
  struct Row {
    std::u16string_view name;
    std::u16string_view pattern;
    bool result;
  };
  constexpr Row rows[] = {
      {u"", u"", true},          {u"", u"*", true},         {u"", u"?", false},
      {u"a", u"", false},        {u"a", u"a", true},        {u"a", u"A", false},
      {u"a", u"?", true},        {u"ab", u"?", false},      {u"ab", u"??", true},
      {u"abc", u"a*", true},     {u"abc", u"*c", true},     {u"abc", u"*b*", true},
      {u"abc", u"a*c", true},    {u"ac", u"a*c", true},     {u"acb", u"a*c", false},
      {u"abcbc", u"a*bc", true}, {u"aXbXc", u"a*X?", true}, {u"abc", u"**", true},
      {u"abc", u"a**c", true},   {u"noext", u"*.*", true},  {u"noext", u"n*.*", false},
      {u"č.x", u"?.x", true},    {u"aab", u"*ab", true},    {u"aa", u"*ab", false},
      {u"abc", u"abc*", true},   {u"abc", u"abc?", false},
  };
  for (const Row& row : rows) EXPECT_EQ(MatchesPattern(row.name, row.pattern), row.result);
}

TEST(MatchesPattern, TakesNoTimeBeyondTheProductOfTheLengths) {
  const std::u16string name(20'000, u'a');
  std::u16string pattern;
  for (int i = 0; i < 1000; ++i) pattern += u"*a";
  EXPECT_FALSE(MatchesPattern(name, pattern + u"b"));
  EXPECT_TRUE(MatchesPattern(name, pattern));
}

TEST(FirstFound, TheNameItselfComesBeforeThePattern) {
  const test::ScratchFolder folder;
  folder.Write("a*", "");
  folder.Write("a", "");
  folder.Write("b", "");
  const std::string path = folder.Path().string() + "/";
  EXPECT_EQ(FirstFound(path + "a*"), path + "a*");
  EXPECT_EQ(FirstFound(path + "?"), path + ".");
  EXPECT_EQ(FirstFound(path + "b*"), path + "b");
  EXPECT_EQ(FirstFound(path + "c*"), std::nullopt);
  EXPECT_EQ(FirstFound(path), std::nullopt);
  EXPECT_EQ(FirstFound(""), std::nullopt);
}

TEST(FirstFound, WithoutAFolderLooksInTheCurrentOne) {
  const test::ScratchFolder folder;
  folder.Write("b1", "");
  folder.Write("b0", "");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  const auto found = FirstFound("b?");
  const auto missing = FirstFound("c?");
  std::filesystem::current_path(before);
  EXPECT_EQ(found, "b0");
  EXPECT_EQ(missing, std::nullopt);
}

}  // namespace
}  // namespace ravo::platform::posix

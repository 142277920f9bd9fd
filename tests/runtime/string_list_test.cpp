#include <ravo/runtime/error.h>
#include <ravo/runtime/string_list.h>

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ravo {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::u16string> LinesOf(const StringList& list) { return {list.begin(), list.end()}; }

StringList ListOf(std::initializer_list<std::u16string_view> lines) {
  StringList list;
  for (const std::u16string_view line : lines) list.Add(std::u16string(line));
  return list;
}

TEST(StringList, TextEndsEachLineTheLastOneToo) {
  EXPECT_EQ(StringList().Text(), u"");
  EXPECT_EQ(ListOf({u""}).Text(), u"\r\n");
  EXPECT_EQ(ListOf({u"a", u"", u"b"}).Text(), u"a\r\n\r\nb\r\n");
}

TEST(StringList, SetTextTakesEveryKindOfLineBreak) {
  StringList list;
  list.SetText(u"a\rb\nc\r\nd");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a", u"b", u"c", u"d"));
  list.SetText(u"a\n\rb");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a", u"", u"b"));
  list.SetText(u"\r\n");
  EXPECT_THAT(LinesOf(list), ElementsAre(u""));
  list.SetText(u"a\r\n");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a"));
  list.SetText(u"a\r\n\r\n");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a", u""));
  list.SetText(u"a\r");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a"));
  list.SetText(std::u16string_view(u"a\0b\nc", 5));
  EXPECT_THAT(LinesOf(list), ElementsAre(std::u16string_view(u"a\0b", 3), u"c"));
  list.SetText(u"");
  EXPECT_THAT(LinesOf(list), IsEmpty());
}

TEST(StringList, SetTextTakesBackWhatTextGave) {
  for (const StringList& list : {StringList(), ListOf({u""}), ListOf({u"a", u"", u""}), ListOf({u"x=1"})}) {
    StringList copy = ListOf({u"old"});
    copy.SetText(list.Text());
    EXPECT_EQ(copy, list);
  }
}

TEST(StringList, SetTextMayBeGivenOneOfItsOwnLines) {
  StringList list = ListOf({u"first\nsecond", u"other"});
  list.SetText(list.At(0));
  EXPECT_THAT(LinesOf(list), ElementsAre(u"first", u"second"));
}

TEST(StringList, AtBeyondTheEndRaises) {
  const StringList list = ListOf({u"a"});
  EXPECT_EQ(list.At(0), u"a");
  EXPECT_THROW(static_cast<void>(list.At(1)), RangeError);
  EXPECT_THROW(static_cast<void>(list.NameAt(1)), RangeError);
  EXPECT_THROW(static_cast<void>(list.ValueAt(1)), RangeError);
  EXPECT_THROW(static_cast<void>(StringList().At(0)), RangeError);
}

TEST(StringList, NamesAndValuesAreSplitAtTheFirstEqualsSign) {
  struct Row {
    std::u16string_view line;
    std::u16string_view name;
    std::u16string_view value;
  };
  constexpr Row rows[] = {
      {u"a=b", u"a", u"b"}, {u"a=b=c", u"a", u"b=c"}, {u"a=", u"a", u""},
      {u"=b", u"", u"b"},   {u"ab", u"", u""},        {u"", u"", u""},
  };
  for (const Row& row : rows) {
    const StringList list = ListOf({row.line});
    EXPECT_EQ(list.NameAt(0), row.name);
    EXPECT_EQ(list.ValueAt(0), row.value);
  }
}

TEST(StringList, TheFirstLineOfANameCounts) {
  const StringList list = ListOf({u"key", u"KEY=1", u"key=2", u"Č=3"});
  EXPECT_EQ(list.IndexOfName(u"Key"), 1u);
  EXPECT_EQ(list.Value(u"key"), u"1");
  EXPECT_EQ(list.IndexOfName(u"č"), std::nullopt);
  EXPECT_EQ(list.Value(u"č"), u"");
  EXPECT_EQ(list.IndexOfName(u""), std::nullopt);
  EXPECT_EQ(StringList().IndexOfName(u"a"), std::nullopt);
}

TEST(StringList, SetValueReplacesAddsAndDeletes) {
  StringList list = ListOf({u"a=1", u"b=2", u"B=3"});
  list.SetValue(u"B", u"x=y");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a=1", u"B=x=y", u"B=3"));
  list.SetValue(u"new", u"4");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a=1", u"B=x=y", u"B=3", u"new=4"));
  list.SetValue(u"b", u"");
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a=1", u"B=3", u"new=4"));
  list.SetValue(u"absent", u"");
  EXPECT_EQ(list.Count(), 3u);
}

TEST(StringList, SetValueMayBeGivenPartsOfItsOwnLines) {
  StringList list = ListOf({u"a=1"});
  list.SetValue(list.NameAt(0), list.ValueAt(0));
  EXPECT_THAT(LinesOf(list), ElementsAre(u"a=1"));
}

TEST(StringList, ClearAndCount) {
  StringList list = ListOf({u"a", u"b"});
  EXPECT_EQ(list.Count(), 2u);
  EXPECT_FALSE(list.Empty());
  list.Clear();
  EXPECT_TRUE(list.Empty());
  EXPECT_EQ(list.Text(), u"");
}

}  // namespace
}  // namespace ravo

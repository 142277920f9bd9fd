#include "support/effort.h"
#include <ravo/common/qualified_names.h>

#include <vector>

#include <gtest/gtest.h>

namespace ravo::RavoInterfaceCommon {
namespace {

TEST(ExtractTableFromProperty, Rows) {
  EXPECT_EQ(ExtractTableFromProperty(u"Faktury.Cislo"), u"Faktury");
  EXPECT_EQ(ExtractTableFromProperty(u"Faktury"), u"Faktury");
  EXPECT_EQ(ExtractTableFromProperty(u"A.B.C"), u"A");
  EXPECT_EQ(ExtractTableFromProperty(u".Cislo"), u"");
  EXPECT_EQ(ExtractTableFromProperty(u"."), u"");
  EXPECT_EQ(ExtractTableFromProperty(u""), u"");
}

TEST(RemoveTableFromProperties, Rows) {
  struct Row {
    std::u16string_view table;
    std::u16string_view properties;
    std::u16string_view rest;
  };
  constexpr Row rows[] = {
      {u"F", u"F.A;F.B;G.C", u"A;B;G.C"},
      {u"f", u"F.A", u"F.A"},
      {u"F", u"", u""},
      {u"", u"", u""},
      {u"", u"A.B;C.D.", u"AB;CD"},
      {u"F", u"FF..A", u"A"},  // a deletion forms the next occurrence
      {u"F", u"XF.A", u"XA"},  // the end of a longer name matches too
      {u"F.", u"F..A;F.B", u"A;F.B"},
      {u"Faktury", u"Faktury.", u""},
      {u"Faktury", u"Faktury", u"Faktury"},
      {u"Žák", u"Žák.A;žák.B", u"A;žák.B"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(RemoveTableFromProperties(row.table, row.properties), row.rest)
        << testing::PrintToString(row.properties);
  }
}

// The definition.
std::u16string PlainRemove(std::u16string_view table, std::u16string properties) {
  const std::u16string prefix = std::u16string(table) + u'.';
  for (std::size_t at; (at = properties.find(prefix)) != properties.npos;) {
    properties.erase(at, prefix.size());
  }
  return properties;
}

// All texts over "a", "b" and "." of at most `longest` units.
std::vector<std::u16string> AllTexts(std::size_t longest) {
  std::vector<std::u16string> texts{u""};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (texts[i].size() == longest) break;
    for (const char16_t unit : {u'a', u'b', u'.'}) texts.push_back(texts[i] + unit);
  }
  return texts;
}

TEST(RemoveTableFromProperties, IsThePlainLoopOnAllSmallTexts) {
  const std::vector<std::u16string> tables = AllTexts(3);
  const std::vector<std::u16string> texts = AllTexts(test::kSanitized ? 8 : 9);
  ASSERT_EQ(tables.size(), 40u);
  ASSERT_EQ(texts.size(), test::kSanitized ? 9841u : 29524u);
  for (const std::u16string& table : tables) {
    for (const std::u16string& text : texts) {
      ASSERT_EQ(RemoveTableFromProperties(table, text), PlainRemove(table, text))
          << testing::PrintToString(table) << ' ' << testing::PrintToString(text);
    }
  }
}

// The plain loop would take hours for these texts.
TEST(RemoveTableFromProperties, LongTextsTakeTimeInProportion) {
  constexpr std::size_t many = 1 << 20;
  const std::u16string dots(many, u'.');
  EXPECT_EQ(RemoveTableFromProperties(u"F", std::u16string(many, u'F') + dots), u"");
  EXPECT_EQ(RemoveTableFromProperties(std::u16string(many / 2, u'.') + u"x", dots), dots);
}

}  // namespace
}  // namespace ravo::RavoInterfaceCommon

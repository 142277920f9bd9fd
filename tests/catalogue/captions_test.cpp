#include <ravo/RavoInterfaceResources.h>
#include <ravo/runtime/text.h>

#include <algorithm>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace ravo {
namespace {

namespace captions = RavoInterfaceResources;

struct ExpectedCaption {
  std::string_view name;
  std::uint16_t id;
  std::u16string_view text;
};

constexpr ExpectedCaption kExpected[] = {
#include "captions_expected.inc"
};

TEST(Captions, AreAllThereInDeclarationOrder) {
  const auto rows = CaptionRows();
  ASSERT_EQ(rows.size(), std::size(kExpected));
  ASSERT_EQ(rows.size(), 53U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].name, kExpected[i].name);
    EXPECT_EQ(rows[i].text.id, kExpected[i].id) << rows[i].name;
    EXPECT_EQ(rows[i].text.built_in, kExpected[i].text) << rows[i].name;
    EXPECT_EQ(rows[i].text.Text(), kExpected[i].text) << rows[i].name;
  }
}

TEST(Captions, HaveIdentifiersOfTheirOwnInTheStringTable) {
  std::set<std::uint16_t> ids;
  for (const CaptionRow& row : CaptionRows()) {
    EXPECT_TRUE(ids.insert(row.text.id).second) << row.name;
    EXPECT_GE(row.text.id, 65408) << row.name;
  }
}

TEST(Captions, StandInTheirSets) {
  struct Row {
    std::string_view group;
    std::size_t captions;
  };
  constexpr Row rows[] = {
      {"Document kind of payables and receivables", 3},
      {"VAT rate level", 6},
      {"Operation kind", 6},
      {"Warehouse posting account", 3},
      {"Payroll surcharge computation", 10},
      {"VAT rounding", 5},
      {"Rounding of totals", 5},
      {"Price basis of an amount", 3},
      {"Discount or surcharge calculation", 6},
      {"Payment method", 2},
      {"Transferred flag", 2},
      {"Messages on automatic posting", 2},
  };
  std::vector<std::string_view> expected;
  for (const Row& row : rows) expected.insert(expected.end(), row.captions, row.group);
  EXPECT_TRUE(std::ranges::equal(CaptionRows(), expected, {}, &CaptionRow::group));
}

// Returns the letter after the accelerator mark, or an empty text.
std::u16string_view Accelerator(std::u16string_view caption) {
  const std::size_t mark = caption.find(u'&');
  return mark == std::u16string_view::npos ? std::u16string_view() : caption.substr(mark + 1, 1);
}

TEST(Captions, BeginWithThePrefixOfTheirSet) {
  for (const CaptionRow& row : CaptionRows()) {
    EXPECT_TRUE(row.name.starts_with(row.prefix) && row.name.size() > row.prefix.size()) << row.name;
  }
}

TEST(Captions, MarkTheirAccelerators) {
  struct Row {
    ResourceString caption;
    std::u16string_view accelerator;
    std::u16string_view plain;
  };
  constexpr Row rows[] = {
      {captions::rPropertyTypOperaceDodaciList, u"l", u"Dodací list"},
      {captions::rPropertyTypOperaceFaktura, u"F", u"Faktura"},
      {captions::rPropertyDokladPZNeurceno, u"e", u"Neurčeno"},
      {captions::rPropertySkladUcetUcet, u"1", u"1. Použít zadaný účet"},
      {captions::rPropertyPriplatekProcentaPrumerProNahradyHodiny, u"p",
       u"%PH - Hodiny (%P z průměrného výdělku)"},
      {captions::rPlatebniPodminkyHotove, u"", u"Hotově"},
      {captions::rPropertyPrenesenoAno, u"", u"Ano"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Accelerator(row.caption.View()), row.accelerator);
    EXPECT_EQ(PlainCaption(row.caption.View()), row.plain);
  }
}

TEST(Captions, HaveOneMarkAtMostAndNoneWhenPlain) {
  std::size_t marked = 0;
  for (const CaptionRow& row : CaptionRows()) {
    const std::u16string caption = row.text.Text();
    const auto marks = std::ranges::count(caption, u'&');
    EXPECT_LE(marks, 1) << row.name;
    EXPECT_EQ(std::ranges::count(PlainCaption(caption), u'&'), 0) << row.name;
    EXPECT_EQ(PlainCaption(caption).size(), caption.size() - static_cast<std::size_t>(marks)) << row.name;
    marked += marks > 0;
  }
  EXPECT_EQ(marked, 47U);
}

TEST(Captions, OfMessagesBreakTheLineWithOneCarriageReturn) {
  for (const ResourceString& message :
       {captions::rMessageAutomatickyPrenosDenik, captions::rMessageAutomatickyPrenosZP}) {
    const std::u16string text = message.Text();
    EXPECT_EQ(std::ranges::count(text, u'\r'), 1) << message.id;
    EXPECT_EQ(std::ranges::count(text, u'\n'), 0) << message.id;
    EXPECT_EQ(std::ranges::count(text, u'\u201E'), 1) << message.id;
    EXPECT_EQ(std::ranges::count(text, u'\u201C'), 1) << message.id;
  }
}

TEST(Captions, KeepTheNameNezaokruhlovat) {
  EXPECT_EQ(captions::rPropertyZaokrouhleniNezaokruhlovat.Text(), u"&Nezaokrouhlovat");
}

}  // namespace
}  // namespace ravo

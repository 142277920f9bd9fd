// The labels of the web, and all names in the listing.
#include <ravo/DIUnicode.h>

#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace ravo::DIUnicode {
namespace {

struct LabelRow {
  std::string_view encoding;
  std::string_view name;
  std::string_view labels;
};

#define RAVO_LABELS(encoding, name, labels) {encoding, name, labels},
constexpr LabelRow kLabels[] = {
#include "encoding_labels.inc"
};
#undef RAVO_LABELS

// Labels that the Standard maps to a larger encoding, but that name an encoding of the library.
const std::map<std::string_view, std::string_view> kExact = {
    {"ansi_x3.4-1968", "US_ASCII"}, {"ascii", "US_ASCII"},         {"us-ascii", "US_ASCII"},
    {"cp819", "Iso_8859_1"},        {"csisolatin1", "Iso_8859_1"}, {"ibm819", "Iso_8859_1"},
    {"iso-8859-1", "Iso_8859_1"},   {"iso-ir-100", "Iso_8859_1"},  {"iso8859-1", "Iso_8859_1"},
    {"iso88591", "Iso_8859_1"},     {"iso_8859-1", "Iso_8859_1"},  {"iso_8859-1:1987", "Iso_8859_1"},
    {"l1", "Iso_8859_1"},           {"latin1", "Iso_8859_1"},      {"csisolatin5", "Iso_8859_9"},
    {"iso-8859-9", "Iso_8859_9"},   {"iso-ir-148", "Iso_8859_9"},  {"iso8859-9", "Iso_8859_9"},
    {"iso88599", "Iso_8859_9"},     {"iso_8859-9", "Iso_8859_9"},  {"iso_8859-9:1989", "Iso_8859_9"},
    {"l5", "Iso_8859_9"},           {"latin5", "Iso_8859_9"},      {"tis-620", "TIS_620"},
    {"koi8-ru", "Koi8_RU"},         {"csunicode", "UCS_2_BE"},     {"iso-10646-ucs-2", "UCS_2_BE"},
    {"ucs-2", "UCS_2_BE"},          {"utf-16", "UTF_16_BE"},
};

std::string_view NameOf(std::string_view label) {
  const EncodingRow* const row = FindEncoding(label);
  return row == nullptr ? std::string_view() : row->name;
}

template <class Use>
void ForEachWord(std::string_view words, Use use) {
  while (!words.empty()) {
    const std::size_t length = std::min(words.find(' '), words.size());
    use(words.substr(0, length));
    words.remove_prefix(std::min(length + 1, words.size()));
  }
}

TEST(FindEncoding, KnowsTheLabelsOfTheEncodingStandard) {
  std::set<std::string_view> labels;
  std::size_t exact = 0;
  for (const LabelRow& row : kLabels) {
    ForEachWord(row.labels, [&](std::string_view label) {
      EXPECT_TRUE(labels.insert(label).second) << label;
      const auto own = kExact.find(label);
      if (own == kExact.end()) {
        EXPECT_EQ(NameOf(label), row.name) << label << " of " << row.encoding;
        return;
      }
      ++exact;
      EXPECT_EQ(NameOf(label), own->second) << label << " of " << row.encoding;
      EXPECT_NE(own->second, row.name) << label;
    });
  }
  EXPECT_EQ(labels.size(), 228U);
  EXPECT_EQ(exact, kExact.size());
}

// The names of the Standard's encodings are names here too.
TEST(FindEncoding, KnowsTheEncodingsOfTheEncodingStandardByTheirNames) {
  for (const LabelRow& row : kLabels) {
    const std::string_view name = NameOf(row.encoding);
    EXPECT_EQ(name, row.name) << row.encoding;
    EXPECT_TRUE(name.empty() || FindEncoding(name)->read != nullptr) << row.encoding;
  }
}

// Every form in the listing: the name, the label with and without its part in parentheses, the number, the
// number after "cp", and the aliases.
TEST(FindEncoding, KnowsEveryNameThatTheListingShows) {
  for (const EncodingRow& row : EncodingRows()) {
    EXPECT_EQ(FindEncoding(row.name), &row);
    EXPECT_EQ(FindEncoding(row.label), &row) << row.label;
    const std::string_view before = row.label.substr(0, row.label.find(" ("));
    EXPECT_EQ(FindEncoding(before), &row) << before;
    ForEachWord(row.aliases, [&](std::string_view alias) { EXPECT_EQ(FindEncoding(alias), &row) << alias; });
    if (row.code_page == 0) continue;
    const std::string number = std::to_string(row.code_page);
    for (const auto* const prefix : {"", "cp", "CP", "cp-", "CP_", "Cp "}) {
      EXPECT_EQ(FindEncoding(prefix + number), &row) << prefix << number;
    }
  }
}

TEST(FindEncoding, ANumberAfterCpIsThatOfACodePageAndNothingElse) {
  EXPECT_EQ(NameOf("cp28591"), "Iso_8859_1");
  EXPECT_EQ(NameOf("cp424"), "CP_424");
  EXPECT_EQ(NameOf("cp20424"), "CP_424");
  for (const char* none :
       {"cp", "cp-", "cp0", "cp1", "cp99999", "cp28591x", "cp285,91", "cp--28591", "xcp28591", "cpcp28591"})
    EXPECT_EQ(FindEncoding(none), nullptr) << none;
}

}  // namespace
}  // namespace ravo::DIUnicode

#include <algorithm>
#include <map>
#include <string_view>

#include <gtest/gtest.h>

namespace ravo {
namespace {

struct Row {
  std::string_view name;
  int id;
  std::u16string_view text;
};

// Every list that contributes to the library's string table.
constexpr Row kRows[] = {
#define RAVO_CAPTION_GROUP(prefix, title)
#define RAVO_STRING(name, id, text) {#name, id, u##text},
#include <ravo/catalogue/captions.inc>
#undef RAVO_STRING
#define RAVO_STRING(name, id, text) {#name, id, u##text},
#include <ravo/sysinfo/captions.inc>
#include <ravo/unicode/messages.inc>
#include <ravo/utils/messages.inc>
#undef RAVO_STRING
};

TEST(StringTable, IdentifiersAreUniqueAndWithinTheirRange) {
  std::map<int, std::string_view> names;
  for (const Row& row : kRows) {
    EXPECT_TRUE(row.id >= 65408 && row.id <= 65535) << row.name;
    EXPECT_TRUE(names.emplace(row.id, row.name).second) << row.name << " and " << names[row.id];
    EXPECT_FALSE(row.text.empty()) << row.name;
  }
}

TEST(StringTable, MessagesOfReaderWriterAndUtilitiesHaveTheirIdentifiers) {
  const Row expected[] = {
      {"SDataSizeError", 65433, u"DataSize out of bounds (%d)"},
      {"SNoDataError", 65434, u"Data is not assigned"},
      {"SNoDestStreamError", 65435, u"Destination stream is not assigned"},
      {"SNoSourceBufferError", 65436, u"SourceBuffer is not assigned"},
      {"SSourceBufferPositionError", 65437, u"SourceBufferPosition out of bounds (%d)"},
      {"SSourceStreamModeError", 65438, u"Operation not allowed in Source Stream Mode"},
      {"SStreamNilError", 65439, u"Stream is nil"},
  };
  for (const Row& row : expected) {
    const auto is_it = [&](const Row& other) { return other.id == row.id; };
    const auto found = std::ranges::find_if(kRows, is_it);
    ASSERT_NE(found, std::end(kRows)) << row.name;
    EXPECT_EQ(found->name, row.name);
    EXPECT_EQ(found->text, row.text);
  }
}

// Each English text belongs to a text of the library.
TEST(StringTable, LanguageModuleKnowsOnlyNamesAndIdentifiersOfTheLibrary) {
  constexpr Row english[] = {
#define RAVO_STRING(name, id, text) {#name, id, u##text},
#include <examples/language_en/captions_en.inc>
#undef RAVO_STRING
  };
  for (const Row& row : english) {
    const auto is_it = [&](const Row& other) { return other.id == row.id && other.name == row.name; };
    EXPECT_TRUE(std::ranges::any_of(kRows, is_it)) << row.name;
  }
}

}  // namespace
}  // namespace ravo

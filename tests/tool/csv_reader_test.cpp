#include "csv_reader.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tool {
namespace {

// Returns a text in blocks of at most `most` bytes.
CsvReader::Source InPieces(std::string text, std::size_t most) {
  return [text = std::move(text), most, at = std::size_t{0}](std::span<char> to) mutable {
    const std::size_t count = std::min({most, to.size(), text.size() - at});
    std::copy_n(text.begin() + static_cast<std::ptrdiff_t>(at), count, to.begin());
    at += count;
    return count;
  };
}

using Rows = std::vector<std::vector<std::string>>;

Rows ReadAll(const std::string& text, char delimiter, std::size_t most = 1 << 20,
             std::size_t block = BlockReader::kBlock) {
  CsvReader reader(InPieces(text, most), delimiter, block);
  Rows rows;
  for (std::vector<std::string_view> fields; reader.Next(fields);)
    rows.emplace_back(fields.begin(), fields.end());
  return rows;
}

TEST(CsvReader, Rows) {
  struct Row {
    std::string text;
    Rows rows;
  };
  const Row rows[] = {
      {"", {}},
      {"\r\n\n\n", {}},
      {"a;b;c", {{"a", "b", "c"}}},
      {"a;b\r\nc;d\r\n", {{"a", "b"}, {"c", "d"}}},
      {"a;b\nc;d\n", {{"a", "b"}, {"c", "d"}}},
      {"\n\na\n\nb\n", {{"a"}, {"b"}}},
      {";\n", {{"", ""}}},
      {"a;\n;b\n", {{"a", ""}, {"", "b"}}},
      {"\"a;b\";c\n", {{"a;b", "c"}}},
      {"\"a\"\"b\";\"\"\n", {{"a\"b", ""}}},
      {"\"a\r\nb\";c\r\nd;e", {{"a\r\nb", "c"}, {"d", "e"}}},
      {"\"a\"", {{"a"}}},
      {"\"\"\"\"", {{"\""}}},
      {"a\"b;c\n", {{"a\"b", "c"}}},
      {"a;\"b\"\r\n", {{"a", "b"}}},
      {"\xEF\xBB\xBF"
       "a;b\n",
       {{"a", "b"}}},
      {"a;b\xC8;\x00\n", {{"a", "b\xC8", ""}}},
  };
  for (const Row& row : rows) {
    for (std::size_t most : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{1000}}) {
      for (const std::size_t block : {std::size_t{1}, std::size_t{5}, BlockReader::kBlock}) {
        EXPECT_EQ(ReadAll(row.text, ';', most, block), row.rows)
            << row.text << " in pieces of " << most << ", blocks of " << block;
      }
    }
  }
}

TEST(CsvReader, FindsTheDelimiterInTheFirstLine) {
  EXPECT_EQ(ReadAll("a,b;c,d\n", 0), (Rows{{"a", "b;c", "d"}}));
  EXPECT_EQ(ReadAll("a,b;c;d\n", 0), (Rows{{"a,b", "c", "d"}}));
  EXPECT_EQ(ReadAll("a\n1,2\n", 0), (Rows{{"a"}, {"1,2"}}));
}

TEST(CsvReader, TellsTheLineOnWhichARowBegins) {
  CsvReader reader(InPieces("a\n\n\"b\nb\"\nc", 2), ';');
  std::vector<std::string_view> fields;
  for (const std::size_t line : {1U, 3U, 5U}) {
    ASSERT_TRUE(reader.Next(fields));
    EXPECT_EQ(reader.Line(), line);
  }
  EXPECT_FALSE(reader.Next(fields));
  EXPECT_EQ(reader.BytesRead(), 10U);
}

void ExpectError(const std::string& text, std::size_t line) {
  try {
    static_cast<void>(ReadAll(text, ';', 3));
    ADD_FAILURE() << text;
  } catch (const CsvError& error) {
    EXPECT_EQ(error.Line(), line) << text;
    EXPECT_TRUE(std::string(error.what()).starts_with("line " + std::to_string(line))) << error.what();
  }
}

TEST(CsvReader, DamagedRowsNameTheirLine) {
  ExpectError("a\n\"b", 2);
  ExpectError("a\n\"b\nc\n\"\"d", 2);
  ExpectError("\"a\"b;c\n", 1);
  ExpectError("a;b\n\"c\nd\"e", 2);
  ExpectError("\"a\" ;b", 1);
}

// Rows longer than the buffer, and fields that end at its boundary.
TEST(CsvReader, RowsOfAnyLength) {
  for (const std::size_t length : {(1U << 20) - 2, (1U << 20) - 1, 1U << 20, (1U << 20) + 1, 3U << 20}) {
    const std::string plain(length, 'x');
    EXPECT_EQ(ReadAll(plain + ";y\nz;1\n", ';'), (Rows{{plain, "y"}, {"z", "1"}}));
    EXPECT_EQ(ReadAll("\"" + plain + "\"\"\";y\nz;1\n", ';'), (Rows{{plain + "\"", "y"}, {"z", "1"}}));
  }
}

}  // namespace
}  // namespace tool

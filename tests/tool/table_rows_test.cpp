#include "table_rows.h"

#include "support/effort.h"
#include "table_blocks.h"
#include "table_shape.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <random>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tool {
namespace {

using Fate = OpeningQuote::Fate;

struct PlainRow {
  std::vector<std::string> fields;
  std::string bytes;
  std::size_t line = 0;
  Fate quote = Fate::Closed;
  std::size_t quote_line = 0;
  bool operator==(const PlainRow&) const = default;
};

std::ostream& operator<<(std::ostream& out, const PlainRow& row) {
  out << "line " << row.line << " quote " << static_cast<int>(row.quote) << " in " << row.quote_line << ":";
  for (const std::string& field : row.fields) out << " [" << field << "]";
  return out << " of " << testing::PrintToString(row.bytes);
}

void Read(RowScanner scanner, std::string_view text, std::vector<PlainRow>& rows) {
  std::string space;
  for (TableRow row; scanner.Next(row);) {
    PlainRow plain{{}, std::string(text.substr(row.begin, row.end - row.begin)), row.line, row.quote, 0};
    if (row.quote != Fate::Closed) plain.quote_line = row.quote_line;
    for (std::size_t i = 0; i < row.fields.size(); ++i)
      plain.fields.emplace_back(ValueOf(row.fields[i], space));
    rows.push_back(std::move(plain));
  }
}

std::vector<PlainRow> RowsOf(std::string_view text) {
  std::vector<PlainRow> rows;
  Read(RowScanner(text, ';'), text, rows);
  return rows;
}

// The rows of a table that comes in blocks.
std::vector<PlainRow> RowsInBlocks(std::string_view text, std::size_t block, std::size_t most) {
  std::size_t at = 0;
  BlockReader reader(
      [&](std::span<char> to) {
        const std::size_t count = std::min({most, to.size(), text.size() - at});
        std::copy_n(text.begin() + static_cast<std::ptrdiff_t>(at), count, to.begin());
        at += count;
        return count;
      },
      block);
  reader.Begin(';', 0);
  std::vector<PlainRow> rows;
  std::size_t end = 0;
  for (TableBlock piece; reader.Next(piece);) {
    EXPECT_EQ(piece.offset, end);
    EXPECT_EQ(piece.Text(), text.substr(end, piece.size));
    end += piece.size;
    Read(RowScanner(piece.Text(), ';', piece.first_line), piece.Text(), rows);
  }
  EXPECT_EQ(end, text.size());
  return rows;
}

// The same rules, one byte at a time.
class Reference {
 public:
  explicit Reference(std::string_view text) : text_(text) {}

  std::vector<PlainRow> Rows() {
    std::vector<PlainRow> rows;
    while (SkipEnds()) rows.push_back(Row());
    return rows;
  }

 private:
  [[nodiscard]] bool IsEnd(std::size_t at) const { return text_[at] == '\n' || text_[at] == '\r'; }

  void PassEnd() {
    const bool is_pair = text_.substr(at_, 2) == "\r\n";
    at_ += is_pair ? 2 : 1;
    ++line_;
  }

  bool SkipEnds() {
    while (at_ < text_.size() && IsEnd(at_)) PassEnd();
    return at_ < text_.size();
  }

  PlainRow Row() {
    PlainRow row;
    row.line = line_;
    const std::size_t begin = at_;
    for (;; ++at_) {
      row.fields.push_back(Field(row));
      if (at_ == text_.size() || IsEnd(at_)) break;
    }
    if (at_ < text_.size()) PassEnd();
    row.bytes = text_.substr(begin, at_ - begin);
    return row;
  }

  std::string Field(PlainRow& row) {
    if (at_ < text_.size() && text_[at_] == '"') {
      if (auto quoted = Quoted(row)) return *quoted;
    }
    std::string field;
    while (at_ < text_.size() && text_[at_] != ';' && !IsEnd(at_)) field += text_[at_++];
    return field;
  }

  std::optional<std::string> Quoted(PlainRow& row) {
    std::string field;
    std::size_t ends = 0;
    std::size_t at = at_ + 1;
    for (; at < text_.size(); ++at) {
      if (text_[at] == '"' && text_.substr(at, 2) != "\"\"") break;
      if (text_[at] == '"') ++at;
      ends += text_[at] == '\n' || (text_[at] == '\r' && text_.substr(at, 2) != "\r\n") ? 1 : 0;
      field += text_[at];
    }
    const bool is_closed = at < text_.size();
    if (is_closed && (at + 1 == text_.size() || text_[at + 1] == ';' || IsEnd(at + 1))) {
      at_ = at + 1;
      line_ += ends;
      return field;
    }
    if (row.quote == Fate::Closed) {
      row.quote = is_closed && ends == 0 ? Fate::TextAfter : Fate::Open;
      row.quote_line = line_;
    }
    return {};
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

std::string RandomText(std::mt19937& source) {
  static constexpr std::string_view kPieces[] = {"a",  ";",    "\"",  "\n",  "\r\n",
                                                 "\r", "\"\"", ";\"", "\";", "bcdefghijklmnopqrstuvwxyz"};
  std::string text;
  for (std::size_t i = source() % 40; i > 0; --i) text += kPieces[source() % std::size(kPieces)];
  return text;
}

// Long rows make the pieces of 64 bytes differ, short ones the rest.
TEST(TableRows, RandomTablesAreReadAsByteByByte) {
  std::mt19937 source(15);
  for (int i = 0; i < ravo::test::Rounds(20000); ++i) {
    const std::string text = RandomText(source);
    const std::vector<PlainRow> wanted = Reference(text).Rows();
    ASSERT_EQ(RowsOf(text), wanted) << testing::PrintToString(text);
    for (const std::size_t block : {std::size_t{1}, std::size_t{7}, std::size_t{64}}) {
      ASSERT_EQ(RowsInBlocks(text, block, 3), wanted)
          << testing::PrintToString(text) << " in blocks of " << block;
    }
  }
}

TEST(TableRows, AQuoteIsOpenAfterTheLongestField) {
  const std::string inside(kLongestQuoted, 'x');
  EXPECT_EQ(RowsOf("\"" + inside + "\"\n").front().quote, Fate::Open);
  EXPECT_EQ(RowsOf("\"" + inside.substr(1) + "\"\n").front().quote, Fate::Closed);
  const std::string text = "\"" + inside + "\n1;2\n\"3\";\"\n";
  const std::vector<PlainRow> rows = RowsInBlocks(text, 1000, 1 << 16);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].quote, Fate::Open);
  EXPECT_EQ(rows[2], (PlainRow{{"3", "\""}, "\"3\";\"\n", 3, Fate::Open, 3}));
}

TEST(TableRows, LineEndsAreCountedAtAnyLength) {
  for (std::size_t length = 0; length < 1000; ++length) {
    const std::string lone(length, '\r');
    EXPECT_EQ(CountLineEnds(lone), length);
    EXPECT_EQ(CountLineEnds(lone + '\n'), std::max<std::size_t>(length, 1));
    EXPECT_EQ(CountLineEnds(std::string(length, '\n')), length);
  }
}

TEST(TableShape, TheDelimiterGivesMostRowsTheFieldsOfTheFirst) {
  struct Row {
    std::string sample;
    char delimiter;
  };
  const Row rows[] = {
      {"", ';'},
      {"a\n1,2\n", ';'},
      {"a,b;c,d\n", ','},
      {"a,b;c;d\n", ';'},
      {"a|b\n1,2|3\n", '|'},
      {"a\tb\n1;2\t3\n", '\t'},
      {"a,b;c\n1;2\n3;4\n", ';'},
      {"\"a;b;c\",d\n1,2\n", ','},
  };
  for (const Row& row : rows) EXPECT_EQ(DetectDelimiter(row.sample, true), row.delimiter) << row.sample;
  // The last row of a sample may be cut.
  EXPECT_EQ(DetectDelimiter("a,b;c\n1,2;3\n4,5", true), ',');
  EXPECT_EQ(DetectDelimiter("a,b;c\n1,2;3\n4,5", false), ';');
}

}  // namespace
}  // namespace tool

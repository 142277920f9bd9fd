#include "csv_column.h"

#include "table_columns.h"
#include "table_rows.h"
#include "table_shape.h"
#include "table_text.h"
#include "text.h"
#include <ravo/RavoInterface.h>
#include <ravo/codec/texts.h>

#include <stdexcept>
#include <vector>

namespace tool {
namespace {

using ravo::DIUnicode::EncodingRow;

const EncodingRow& EncodingOf(std::string_view table, const CsvColumn& column) {
  const EncodingRow& encoding =
      column.encoding != nullptr
          ? *column.encoding
          : *ravo::DIUnicode::FindEncoding(GuessTableEncoding(table.substr(0, kSampleSize)).encoding);
  if (TableText::CanRead(encoding)) return encoding;
  throw std::runtime_error(Text("is {0}; convert it first: ravo convert -f auto -t utf-8", {encoding.label}));
}

char DelimiterOf(std::string_view table, const CsvColumn& column) {
  if (column.delimiter != '\0') return column.delimiter;
  return DetectDelimiter(table.substr(0, kSampleSize), table.size() <= kSampleSize);
}

// The texts of a table in its encoding.
class TableCodec {
 public:
  explicit TableCodec(const EncodingRow& encoding)
      : text_(encoding), encoding_(*ravo::codec::FindEncoding(encoding.name)) {}

  [[nodiscard]] std::string Utf8(const TableField& field) { return text_.Utf8(ValueOf(field, space_)); }
  [[nodiscard]] std::string Bytes(const std::string& utf8) const {
    return ravo::codec::Encoded(encoding_, ravo::FromUtf8(utf8));
  }

 private:
  TableText text_;
  const ravo::codec::Encoding& encoding_;
  std::string space_;
};

std::size_t IndexOfColumn(const TableRow& header, TableCodec& codec, const std::string& name,
                          char delimiter) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < header.fields.size(); ++i) names.push_back(codec.Utf8(header.fields[i]));
  const FoundColumn found = FindColumn(names, name, delimiter);
  if (!found.index) throw std::runtime_error(found.why);
  return *found.index;
}

std::string WrittenField(const std::string& value, char delimiter, bool quoted) {
  const char special[] = {delimiter, '"', '\r', '\n'};
  if (!quoted && value.find_first_of(std::string_view(special, 4)) == std::string::npos) return value;
  std::string field = "\"";
  for (const char byte : value) field.append(byte == '"' ? 2 : 1, byte);
  return field + "\"";
}

// A field's place in the table, with its quotes.
struct FieldPlace {
  std::size_t begin;
  std::size_t end;
  bool quoted;
};

FieldPlace PlaceOf(std::string_view table, const TableRow& row, const TableField& field) {
  const auto begin = static_cast<std::size_t>(field.bytes.data() - table.data());
  const std::size_t end = begin + field.bytes.size();
  const bool quoted = begin > row.begin && table[begin - 1] == '"';
  return quoted ? FieldPlace{begin - 1, end + 1, true} : FieldPlace{begin, end, false};
}

}  // namespace

std::string ChangeCsvColumn(
    std::string_view table, const CsvColumn& column,
    const std::function<std::optional<std::string>(std::size_t line, const std::string& value)>& change,
    const std::function<void(std::size_t line)>& missing) {
  TableCodec codec(EncodingOf(table, column));
  const std::size_t mark = MarkSize(table);
  const std::string_view rows = table.substr(mark);
  const char delimiter = DelimiterOf(rows, column);
  RowScanner scanner(rows, delimiter);
  TableRow row;
  if (!scanner.Next(row)) throw std::runtime_error(Text("has no first row with column names"));
  const std::size_t index = IndexOfColumn(row, codec, column.name, delimiter);
  std::string changed(table.substr(0, mark));
  std::size_t copied = 0;
  while (scanner.Next(row)) {
    if (index >= row.fields.size()) {
      missing(row.line);
      continue;
    }
    const FieldPlace place = PlaceOf(rows, row, row.fields[index]);
    const std::optional<std::string> next = change(row.line, codec.Utf8(row.fields[index]));
    if (!next) continue;
    changed += rows.substr(copied, place.begin - copied);
    changed += WrittenField(codec.Bytes(*next), delimiter, place.quoted);
    copied = place.end;
  }
  return changed.append(rows.substr(copied));
}

}  // namespace tool

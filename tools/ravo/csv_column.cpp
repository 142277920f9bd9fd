#include "csv_column.h"

#include "foreign_text.h"
#include "text.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <vector>

namespace tool {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

struct FieldPlace {
  std::size_t begin = 0;
  std::size_t end = 0;  // with its quotes
  bool quoted = false;
};

bool EndsLine(char byte) { return byte == '\n' || byte == '\r'; }

// Reads the rows of a table in memory; a field is quoted only if its closing quote ends it.
class RowsInMemory {
 public:
  RowsInMemory(std::string_view text, char delimiter, std::size_t at)
      : text_(text), delimiter_(delimiter), at_(at) {}

  [[nodiscard]] bool Next(std::vector<FieldPlace>& fields) {
    SkipLineEnds();
    if (at_ == text_.size()) return false;
    row_line_ = line_;
    fields.clear();
    for (;;) {
      fields.push_back(NextField());
      line_ += LineEndsIn(text_.substr(fields.back().begin, fields.back().end - fields.back().begin));
      if (at_ == text_.size() || EndsLine(text_[at_])) return true;
      ++at_;
    }
  }

  [[nodiscard]] std::size_t Line() const noexcept { return row_line_; }

 private:
  [[nodiscard]] bool EndsField(std::size_t at) const {
    return at == text_.size() || text_[at] == delimiter_ || EndsLine(text_[at]);
  }

  FieldPlace NextField() {
    const std::size_t begin = at_;
    if (const std::size_t end = QuotedEnd(); end != begin) return {begin, at_ = end, true};
    while (!EndsField(at_)) ++at_;
    return {begin, at_, false};
  }

  // The end of the quoted field that begins here, or its begin if none does.
  [[nodiscard]] std::size_t QuotedEnd() const {
    if (at_ == text_.size() || text_[at_] != '"') return at_;
    std::size_t close = text_.find('"', at_ + 1);
    while (close < text_.size() && text_.substr(close + 1, 1) == "\"") close = text_.find('"', close + 2);
    return close < text_.size() && EndsField(close + 1) ? close + 1 : at_;
  }

  static std::size_t LineEndsIn(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
      if (text[at] == '\n' || (text[at] == '\r' && text.substr(at + 1, 1) != "\n")) ++count;
    return count;
  }

  void SkipLineEnds() {
    const std::size_t begin = at_;
    while (at_ < text_.size() && EndsLine(text_[at_])) ++at_;
    line_ += LineEndsIn(text_.substr(begin, at_ - begin));
  }

  std::string_view text_;
  char delimiter_;
  std::size_t at_;
  std::size_t line_ = 1;
  std::size_t row_line_ = 1;
};

std::string ValueAt(std::string_view table, const FieldPlace& field) {
  std::string value(table.substr(field.begin, field.end - field.begin));
  if (!field.quoted) return value;
  value = value.substr(1, value.size() - 2);
  for (std::size_t at = value.find('"'); at != std::string::npos; at = value.find('"', at + 1))
    value.erase(at, 1);
  return value;
}

// A value as a field, in quotes if it was or has to be.
std::string WrittenField(const std::string& value, char delimiter, bool quoted) {
  const char special[] = {delimiter, '"', '\r', '\n'};
  if (!quoted && value.find_first_of(std::string_view(special, 4)) == std::string::npos) return value;
  std::string field = "\"";
  for (const char byte : value) field.append(byte == '"' ? 2 : 1, byte);
  return field + "\"";
}

// The most frequent of the usual delimiters in the first line.
char LikelyDelimiter(std::string_view table) {
  constexpr std::string_view kDelimiters = ";,\t|";
  const std::string_view line = table.substr(0, table.find_first_of("\r\n"));
  return *std::ranges::max_element(kDelimiters, {},
                                   [&](char each) { return std::ranges::count(line, each); });
}

std::size_t NumberInText(const std::string& name) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
  return error == std::errc() && end == name.data() + name.size() ? number : 0;
}

std::string ListOfNames(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
  return list;
}

std::size_t IndexOfColumn(const std::vector<std::string>& names, const std::string& name, char delimiter) {
  const auto count = std::ranges::count(names, name);
  if (count > 1)
    throw std::runtime_error(Text("several columns have the name '{0}'; give the number", {name}));
  if (count == 1) return static_cast<std::size_t>(std::ranges::find(names, name) - names.begin());
  const std::size_t number = NumberInText(name);
  if (number >= 1 && number <= names.size()) return number - 1;
  const std::string shown = delimiter == '\t' ? "\\t" : std::string(1, delimiter);
  throw std::runtime_error(Text("there is no column '{0}'; the columns, separated by '{1}', are {2}",
                                {name, shown, ListOfNames(names)}));
}

std::vector<std::string> NamesOfColumns(std::string_view table, const std::vector<FieldPlace>& fields) {
  std::vector<std::string> names;
  names.reserve(fields.size());
  for (const FieldPlace& field : fields) names.push_back(ForeignText(ValueAt(table, field)));
  return names;
}

// A new value in the encoding of the old one.
std::string EncodedLike(const std::string& utf8, const std::string& old_bytes, const std::string& old_utf8) {
  constexpr std::uint32_t kCodePage = 1250;
  return old_bytes == old_utf8 ? utf8 : ravo::ToCodePage(ravo::FromUtf8(utf8), kCodePage);
}

}  // namespace

std::string ChangeCsvColumn(
    std::string_view table, const CsvColumn& column,
    const std::function<std::optional<std::string>(std::size_t line, const std::string& value)>& change,
    const std::function<void(std::size_t line)>& missing) {
  const char delimiter = column.delimiter == '\0' ? LikelyDelimiter(table) : column.delimiter;
  RowsInMemory rows(table, delimiter, table.starts_with(kUtf8Mark) ? kUtf8Mark.size() : 0);
  std::vector<FieldPlace> fields;
  if (!rows.Next(fields)) throw std::runtime_error(Text("there is no first row with column names"));
  const std::size_t index = IndexOfColumn(NamesOfColumns(table, fields), column.name, delimiter);
  std::string changed;
  std::size_t copied = 0;
  while (rows.Next(fields)) {
    if (index >= fields.size()) {
      missing(rows.Line());
      continue;
    }
    const std::string bytes = ValueAt(table, fields[index]);
    const std::string value = ForeignText(bytes);
    const std::optional<std::string> next = change(rows.Line(), value);
    if (!next) continue;
    changed += table.substr(copied, fields[index].begin - copied);
    changed += WrittenField(EncodedLike(*next, bytes, value), delimiter, fields[index].quoted);
    copied = fields[index].end;
  }
  return changed.append(table.substr(copied));
}

}  // namespace tool

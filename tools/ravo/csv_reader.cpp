#include "csv_reader.h"

#include "reasons.h"
#include "table_shape.h"
#include "text.h"

#include <utility>

namespace tool {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

}  // namespace

CsvError::CsvError(std::size_t line, const std::string& what)
    : std::runtime_error(Text("line {0}: {1}", {std::to_string(line), what})), line_(line) {}

CsvReader::CsvReader(Source source, char delimiter, std::size_t block)
    : reader_(std::move(source), block), delimiter_(delimiter) {}

void CsvReader::Begin() {
  std::string_view sample = reader_.Peek(delimiter_ != 0 ? kMark.size() : kSampleSize);
  const std::size_t mark = sample.starts_with(kMark) ? kMark.size() : 0;
  if (delimiter_ == 0) delimiter_ = DetectDelimiter(sample.substr(mark), reader_.IsAtEnd());
  reader_.Begin(delimiter_, mark);
  scanner_.emplace(std::string_view(), delimiter_);
}

bool CsvReader::NextRow() {
  if (!scanner_) Begin();
  while (!scanner_->Next(row_)) {
    if (!reader_.Next(block_)) return false;
    scanner_.emplace(block_.Text(), delimiter_, block_.first_line);
  }
  return true;
}

bool CsvReader::Next(std::vector<std::string_view>& fields) {
  if (!NextRow()) return false;
  if (row_.quote != OpeningQuote::Fate::Closed) {
    const bool is_open = row_.quote == OpeningQuote::Fate::Open;
    throw CsvError(row_.quote_line, Described(is_open ? Reason::OpenQuote : Reason::TextAfterQuote));
  }
  fields.clear();
  unescaped_.clear();
  for (std::size_t i = 0; i < row_.fields.size(); ++i) {
    const TableField field = row_.fields[i];
    fields.push_back(field.doubled ? ValueOf(field, unescaped_.emplace_back()) : field.bytes);
  }
  return true;
}

}  // namespace tool

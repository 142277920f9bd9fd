#include "table_checker.h"

#include "check_texts.h"

#include <cstdio>
#include <utility>

namespace tool {
namespace {

using Fate = OpeningQuote::Fate;

// Findings of a block are written early from this size on.
constexpr std::size_t kLargeLines = std::size_t{512} << 10;

template <std::size_t count>
void WidenSome(const char* bytes, char16_t* to) {
  for (std::size_t i = 0; i < count; ++i) to[i] = static_cast<unsigned char>(bytes[i]);
}

// Widens a value byte by byte: the checks accept only ASCII, and no other byte becomes ASCII. So many at a
// time, the last ones once more if need be: most values are short.
void Widen(std::string_view bytes, char16_t* to) {
  const std::size_t size = bytes.size();
  if (size >= 8) {
    for (std::size_t i = 0; i + 8 <= size; i += 8) WidenSome<8>(bytes.data() + i, to + i);
    WidenSome<8>(bytes.data() + size - 8, to + size - 8);
  } else if (size >= 4) {
    WidenSome<4>(bytes.data(), to);
    WidenSome<4>(bytes.data() + size - 4, to + size - 4);
  } else {
    for (std::size_t i = 0; i < size; ++i) to[i] = static_cast<unsigned char>(bytes[i]);
  }
}

std::string HexByte(char byte) {
  char text[8];
  std::snprintf(text, sizeof text, "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return text;
}

}  // namespace

TableChecker::TableChecker(const TableRules& rules, WriteEarly write_early)
    : rules_(rules), write_early_(std::move(write_early)) {
  counts_.columns.resize(rules_.columns.size());
  for (const CheckedColumn& column : rules_.columns) {
    columns_.push_back({column.place, column.kind->check});
  }
}

void TableChecker::Check(BlockWork& work, std::size_t from, std::size_t line) {
  work_ = &work;
  text_ = work.block.Text().substr(from);
  next_wrong_ = rules_.text->FirstWrong(text_, 0);
  RowScanner scanner(text_, rules_.delimiter, line);
  while (scanner.Next(row_)) {
    CheckRow();
    if (counts_.findings != findings_before_) Reject();
    if (work.lines.size() > kLargeLines) write_early_(work);
  }
}

void TableChecker::CheckRow() {
  ++counts_.rows;
  findings_before_ = counts_.findings;
  const std::size_t fields = row_.fields.size();
  if (fields != rules_.fields) {
    AddRowFinding(row_.line, Reason::Ragged,
                  Say(CheckText::FieldCount, {std::to_string(fields), std::to_string(rules_.fields)}));
  }
  if (row_.quote != Fate::Closed) {
    const Reason reason = row_.quote == Fate::Open ? Reason::OpenQuote : Reason::TextAfterQuote;
    AddRowFinding(row_.quote_line, reason, Say(reason));
  }
  if (next_wrong_ < row_.end) CheckBytes();
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const std::size_t place = columns_[i].place;
    if (place < fields) CheckValue(i, ValueOf(row_.fields[place], unescaped_));
  }
}

// Tells the first wrong byte of the row: in a table of another encoding there may be one in each word.
void TableChecker::CheckBytes() {
  const std::size_t line = row_.line + CountLineEnds(text_.substr(row_.begin, next_wrong_ - row_.begin));
  const auto from = static_cast<std::size_t>(text_.data() - work_->block.buffer.data());
  const std::string offset = std::to_string(work_->block.offset + from + next_wrong_);
  AddRowFinding(line, Reason::WrongByte,
                Say(CheckText::WrongByteAt, {HexByte(text_[next_wrong_]), offset, rules_.text->Label()}));
  next_wrong_ = rules_.text->FirstWrong(text_, row_.end);
}

void TableChecker::CheckValue(std::size_t column, std::string_view value) {
  if (value.empty() && rules_.allow_empty) return;
  if (value.size() > wide_.size()) wide_.resize(value.size());
  Widen(value, wide_.data());
  const Verdict verdict = columns_[column].check({wide_.data(), value.size()});
  if (verdict.valid) {
    ++counts_.columns[column].valid;
  } else {
    Report(column, value, verdict);
  }
}

void TableChecker::Report(std::size_t column, std::string_view value, const Verdict& verdict) {
  const Reason reason = value.empty() ? Reason::Empty : verdict.reason;
  ++counts_.columns[column].reasons[static_cast<std::size_t>(reason)];
  ++counts_.findings;
  if (!IsWanted()) return;
  ++work_->findings;
  rules_.lines->AppendValue(work_->lines, row_.line, column, value, reason, verdict.remark);
}

void TableChecker::AddRowFinding(std::size_t line, Reason reason, const std::string& what) {
  ++counts_.rows_by_reason[static_cast<std::size_t>(reason)];
  ++counts_.findings;
  if (!IsWanted()) return;
  ++work_->findings;
  rules_.lines->AppendRow(work_->lines, line, reason, what);
}

// Adds the row to the rejected ones, joined with the one before if that is next to it.
void TableChecker::Reject() {
  ++counts_.rejected;
  const auto from = static_cast<std::size_t>(text_.data() - work_->block.buffer.data());
  auto& rejected = work_->rejected;
  if (!rejected.empty() && rejected.back().end == from + row_.begin) {
    rejected.back().end = from + row_.end;
  } else {
    rejected.push_back({from + row_.begin, from + row_.end});
  }
}

}  // namespace tool

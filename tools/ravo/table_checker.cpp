#include "table_checker.h"

#include "text.h"
#include <ravo/RavoInterface.h>

#include <cstdio>
#include <utility>

namespace tool {
namespace {

using Fate = OpeningQuote::Fate;

// Findings of a block are written early from this size on.
constexpr std::size_t kLargeLines = std::size_t{512} << 10;

// Widens ASCII byte by byte.
void Widen(const char* bytes, std::size_t size, char16_t* to) {
  for (std::size_t i = 0; i < size; ++i) to[i] = static_cast<unsigned char>(bytes[i]);
}

bool IsAscii(std::string_view bytes) {
  unsigned char all = 0;
  for (const char byte : bytes) all |= static_cast<unsigned char>(byte);
  return all < 0x80;
}

std::string HexByte(char byte) {
  char text[8];
  std::snprintf(text, sizeof text, "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return text;
}

}  // namespace

TableChecker::TableChecker(const TableRules& rules) : rules_(rules) {
  for (const CheckedColumn& column : rules_.columns) {
    columns_.push_back({columns_.size(), column.place, column.kind->check, {}});
  }
}

void TableChecker::Check(BlockWork& work, std::size_t from, std::size_t line, const WriteEarly& write_early) {
  work_ = &work;
  text_ = work.block.Text().substr(from);
  next_wrong_ = rules_.text->FirstWrong(text_, 0);
  RowScanner scanner(text_, rules_.delimiter, line);
  while (scanner.Next(row_)) {
    CheckRow();
    if (counts_.findings != findings_before_) Reject();
    if (work.lines.size() > kLargeLines) write_early();
  }
  work.is_done = true;
}

void TableChecker::CheckRow() {
  ++counts_.rows;
  findings_before_ = counts_.findings;
  const std::size_t fields = row_.fields.size();
  if (fields != rules_.fields) {
    AddRowFinding(row_.line, Reason::Ragged, DescribedRagged(fields, rules_.fields));
  }
  if (row_.quote != Fate::Closed) {
    const Reason reason = row_.quote == Fate::Open ? Reason::OpenQuote : Reason::TextAfterQuote;
    AddRowFinding(row_.quote_line, reason, Described(reason));
  }
  if (next_wrong_ < row_.end) CheckBytes();
  for (ColumnCheck& column : columns_) {
    if (column.place < fields) CheckField(column, row_.fields[column.place]);
  }
}

// Tells the first wrong byte of the row: in a table of another encoding there may be one in each word.
void TableChecker::CheckBytes() {
  const std::size_t line = row_.line + CountLineEnds(text_.substr(row_.begin, next_wrong_ - row_.begin));
  const auto from = static_cast<std::size_t>(text_.data() - work_->block.buffer.data());
  const std::string offset = std::to_string(work_->block.offset + from + next_wrong_);
  AddRowFinding(
      line, Reason::WrongByte,
      Text("byte {0} at offset {1} is not {2}", {HexByte(text_[next_wrong_]), offset, rules_.text->Label()}));
  next_wrong_ = rules_.text->FirstWrong(text_, row_.end);
}

void TableChecker::CheckField(ColumnCheck& column, const TableField& field) {
  if (field.bytes.empty() && rules_.allow_empty) return;
  const std::string_view value = ValueOf(field, unescaped_);
  const Verdict verdict = column.check(TextOf(value, field));
  if (verdict.valid) {
    ++column.counts.valid;
  } else {
    Report(column, value, verdict);
  }
}

std::u16string_view TableChecker::TextOf(std::string_view value, const TableField& field) {
  if (!IsAscii(value)) return long_ = ravo::FromUtf8(rules_.text->Utf8(value));
  return field.doubled ? Widened(value) : WidenedInBlock(value);
}

// Most values are short; with the bytes past them, their length costs no branches.
std::u16string_view TableChecker::WidenedInBlock(std::string_view value) {
  if (value.size() > TableBlock::kPadding) return Widened(value);
  Widen(value.data(), TableBlock::kPadding, short_);
  return {short_, value.size()};
}

std::u16string_view TableChecker::Widened(std::string_view value) {
  long_.resize(value.size());
  Widen(value.data(), value.size(), long_.data());
  return long_;
}

TableCounts TableChecker::Counts() const {
  TableCounts counts = counts_;
  for (const ColumnCheck& column : columns_) counts.columns.push_back(column.counts);
  return counts;
}

void TableChecker::Report(ColumnCheck& column, std::string_view value, const Verdict& verdict) {
  const Reason reason = value.empty() ? Reason::Empty : verdict.reason;
  ++column.counts.reasons[static_cast<std::size_t>(reason)];
  ++counts_.findings;
  if (!IsWanted()) return;
  ++work_->findings;
  rules_.lines->AppendValue(work_->lines, row_.line, column.number, value, reason, verdict.remark);
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

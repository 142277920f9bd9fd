#include "csv_reader.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tool {
namespace {

// Returns the index of `byte` in text[from, to), or `to`.
std::size_t Find(const char* text, char byte, std::size_t from, std::size_t to) {
  const void* found = from < to ? std::memchr(text + from, byte, to - from) : nullptr;
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - text) : to;
}

}  // namespace

CsvError::CsvError(std::size_t line, const std::string& what)
    : std::runtime_error("line " + std::to_string(line) + ": " + what), line_(line) {}

CsvReader::CsvReader(Source source, char delimiter, std::size_t first_buffer)
    : source_(std::move(source)), delimiter_(delimiter), buffer_(first_buffer) {}

// Keeps the bytes that belong to no row yet and reads more after them. A row that fills the buffer doubles
// it, so a row is scanned again only when its length doubles.
bool CsvReader::Fill() {
  if (at_end_) return false;
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(begin_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= begin_;
  begin_ = 0;
  if (end_ > buffer_.size() / 2) buffer_.resize(buffer_.size() * 2);
  while (end_ < buffer_.size()) {
    const std::size_t got = source_(std::span(buffer_).subspan(end_));
    end_ += got;
    bytes_read_ += got;
    if (got != 0) continue;
    at_end_ = true;
    break;
  }
  return true;
}

void CsvReader::Begin() {
  begun_ = true;
  static_cast<void>(Fill());
  const std::string_view text(buffer_.data(), end_);
  if (text.starts_with("\xEF\xBB\xBF")) begin_ = 3;
  if (delimiter_ != 0) return;
  const std::string_view first = text.substr(0, text.find('\n'));
  delimiter_ = std::ranges::count(first, ';') >= std::ranges::count(first, ',') ? ';' : ',';
}

// Moves begin_ to the first byte of a row; returns false at the end of the file.
bool CsvReader::SkipEmptyLines() {
  for (;;) {
    while (begin_ < end_ && (buffer_[begin_] == '\n' || buffer_[begin_] == '\r')) {
      if (buffer_[begin_++] == '\n') ++next_line_;
    }
    if (begin_ < end_) return true;
    if (!Fill()) return false;
  }
}

// Returns a quoted field without its quotes, with doubled quotes made single.
std::string_view CsvReader::Unescaped(std::string_view quoted) {
  std::string text;
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    text += quoted[i];
    if (quoted[i] == '"') ++i;
  }
  return unescaped_.emplace_back(std::move(text));
}

// Reads the field whose opening quote is at `at` and moves `at` past its closing quote.
CsvReader::Scan CsvReader::ScanQuoted(std::size_t& at, std::vector<std::string_view>& fields) {
  const std::size_t first = at + 1;
  bool doubled = false;
  for (at = first;; at += 2, doubled = true) {
    at = Find(buffer_.data(), '"', at, end_);
    if (at >= end_ || (at + 1 == end_ && !at_end_)) {
      if (!at_end_) return Scan::NeedsMore;
      throw CsvError(next_line_ + scanned_lines_, "a quote is never closed");
    }
    if (at + 1 == end_ || buffer_[at + 1] != '"') break;
  }
  const std::string_view quoted(buffer_.data() + first, at - first);
  scanned_lines_ += static_cast<std::size_t>(std::ranges::count(quoted, '\n'));
  fields.push_back(doubled ? Unescaped(quoted) : quoted);
  ++at;
  return Scan::Row;
}

// Ends the row at `line_end`; it contains the counted line ends.
CsvReader::Scan CsvReader::EndRow(std::size_t line_end) {
  line_ = next_line_;
  next_line_ += scanned_lines_ + (line_end < end_ ? 1 : 0);
  begin_ = std::min(line_end + 1, end_);
  return Scan::Row;
}

// Returns the end of the text of a line whose line feed, or end of file, is at `line_end`.
std::size_t CsvReader::TextEnd(std::size_t from, std::size_t line_end) const {
  return line_end > from && buffer_[line_end - 1] == '\r' ? line_end - 1 : line_end;
}

// A row without quotes, as most rows are: only delimiters to find.
CsvReader::Scan CsvReader::SplitLine(std::size_t line_end, std::vector<std::string_view>& fields) {
  const char* text = buffer_.data();
  const std::size_t text_end = TextEnd(begin_, line_end);
  for (std::size_t at = begin_;; ++at) {
    const std::size_t field_end = Find(text, delimiter_, at, text_end);
    fields.emplace_back(text + at, field_end - at);
    at = field_end;
    if (at == text_end) return EndRow(line_end);
  }
}

// Reads one field and moves `at` past its delimiter, or past the end of its line. `line_end` is the end of
// the line found last; a quoted field may extend into another line.
CsvReader::Scan CsvReader::ScanField(std::size_t& at, std::vector<std::string_view>& fields,
                                     std::size_t& line_end) {
  const bool quoted = at < end_ && buffer_[at] == '"';
  const std::size_t first = at;
  if (quoted && ScanQuoted(at, fields) == Scan::NeedsMore) return Scan::NeedsMore;
  if (line_end < at) line_end = Find(buffer_.data(), '\n', at, end_);
  if (line_end == end_ && !at_end_) return Scan::NeedsMore;
  const std::size_t text_end = TextEnd(at, line_end);
  const std::size_t field_end = Find(buffer_.data(), delimiter_, at, text_end);
  if (quoted && field_end != at) throw CsvError(next_line_ + scanned_lines_, "text after a closing quote");
  if (!quoted) fields.emplace_back(buffer_.data() + first, field_end - first);
  at = field_end < text_end ? field_end + 1 : line_end + 1;
  return Scan::Row;
}

CsvReader::Scan CsvReader::ScanRow(std::vector<std::string_view>& fields) {
  fields.clear();
  if (!unescaped_.empty()) unescaped_.clear();
  scanned_lines_ = 0;
  std::size_t line_end = Find(buffer_.data(), '\n', begin_, end_);
  if (line_end == end_ && !at_end_) return Scan::NeedsMore;
  if (Find(buffer_.data(), '"', begin_, line_end) == line_end) return SplitLine(line_end, fields);
  // The next row is after the line end; a quoted field may move that end.
  for (std::size_t at = begin_; at <= line_end;) {
    if (ScanField(at, fields, line_end) == Scan::NeedsMore) return Scan::NeedsMore;
  }
  return EndRow(line_end);
}

bool CsvReader::Next(std::vector<std::string_view>& fields) {
  if (!begun_) Begin();
  if (!SkipEmptyLines()) return false;
  while (ScanRow(fields) == Scan::NeedsMore) static_cast<void>(Fill());
  return true;
}

}  // namespace tool

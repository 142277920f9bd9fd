#include "csv_reader.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tool {
namespace {

constexpr std::size_t kFirstBuffer = std::size_t{1} << 20;

// The place of `byte` in text[from, to), or `to`.
std::size_t Find(const char* text, char byte, std::size_t from, std::size_t to) {
  const void* found = from < to ? std::memchr(text + from, byte, to - from) : nullptr;
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - text) : to;
}

}  // namespace

CsvError::CsvError(std::size_t line, const std::string& what)
    : std::runtime_error("line " + std::to_string(line) + ": " + what), line_(line) {}

CsvReader::CsvReader(Source source, char delimiter)
    : source_(std::move(source)), delimiter_(delimiter), buffer_(kFirstBuffer) {}

// Keeps the bytes that belong to no row yet and reads behind them; a row that fills the whole buffer doubles
// it, so a row is scanned again only as often as its length doubles.
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

// Leaves begin_ at the first byte of a row; false where there is none.
bool CsvReader::SkipEmptyLines() {
  for (;;) {
    while (begin_ < end_ && (buffer_[begin_] == '\n' || buffer_[begin_] == '\r')) {
      if (buffer_[begin_++] == '\n') ++next_line_;
    }
    if (begin_ < end_) return true;
    if (!Fill()) return false;
  }
}

// A quoted field without its quotes, its doubled quotes halved.
std::string_view CsvReader::Unescaped(std::string_view quoted) {
  std::string text;
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    text += quoted[i];
    if (quoted[i] == '"') ++i;
  }
  return unescaped_.emplace_back(std::move(text));
}

// Takes the field whose opening quote stands at `at` and leaves `at` behind its closing one.
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

CsvReader::Scan CsvReader::ScanRow(std::vector<std::string_view>& fields) {
  fields.clear();
  unescaped_.clear();
  scanned_lines_ = 0;
  std::size_t at = begin_;
  std::size_t line_end = at;  // at or behind `at` once it was looked for
  for (;;) {
    if (at < end_ && buffer_[at] == '"') {
      if (ScanQuoted(at, fields) == Scan::NeedsMore) return Scan::NeedsMore;
    } else {
      fields.emplace_back();
    }
    if (line_end <= at) line_end = Find(buffer_.data(), '\n', at, end_);
    if (line_end == end_ && !at_end_) return Scan::NeedsMore;
    const bool carriage_return = line_end > at && buffer_[line_end - 1] == '\r';
    const std::size_t text_end = carriage_return ? line_end - 1 : line_end;
    const std::size_t field_end = Find(buffer_.data(), delimiter_, at, text_end);
    const bool was_quoted = fields.back().data() != nullptr;
    if (was_quoted && field_end != at) {
      throw CsvError(next_line_ + scanned_lines_, "text behind a closing quote");
    }
    if (!was_quoted) fields.back() = {buffer_.data() + at, field_end - at};
    if (field_end < text_end) {
      at = field_end + 1;
      continue;
    }
    line_ = next_line_;
    next_line_ += scanned_lines_ + (line_end < end_ ? 1 : 0);
    begin_ = std::min(line_end + 1, end_);
    return Scan::Row;
  }
}

bool CsvReader::Next(std::vector<std::string_view>& fields) {
  if (!begun_) Begin();
  if (!SkipEmptyLines()) return false;
  while (ScanRow(fields) == Scan::NeedsMore) static_cast<void>(Fill());
  return true;
}

}  // namespace tool

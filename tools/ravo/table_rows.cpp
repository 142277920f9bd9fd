#include "table_rows.h"

#include <algorithm>
#include <cstring>

namespace tool {
namespace {

using Fate = OpeningQuote::Fate;

// Returns the index of `byte` in text[from, to), or `to`.
std::size_t Find(std::string_view text, char byte, std::size_t from, std::size_t to) {
  const void* found = from < to ? std::memchr(text.data() + from, byte, to - from) : nullptr;
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - text.data()) : to;
}

bool IsLineEnd(char byte) { return byte == '\n' || byte == '\r'; }

bool HasLineEnd(std::string_view text) {
  return Find(text, '\n', 0, text.size()) < text.size() || Find(text, '\r', 0, text.size()) < text.size();
}

// Counts the line ends of a piece so short that one byte counts them, which lets the loop be vectorized.
std::size_t CountInPiece(const char* text, std::size_t size) {
  std::uint8_t line_feeds = 0;
  std::uint8_t lone_returns = 0;
  for (std::size_t i = 0; i < size; ++i) {
    line_feeds = static_cast<std::uint8_t>(line_feeds + (text[i] == '\n'));
    lone_returns = static_cast<std::uint8_t>(lone_returns + ((text[i] == '\r') & (text[i + 1] != '\n')));
  }
  return std::size_t{line_feeds} + lone_returns;
}

}  // namespace

OpeningQuote ReadQuote(std::string_view text, std::size_t opener, char delimiter, bool is_whole) {
  OpeningQuote quote;
  const std::size_t furthest = opener + 1 + kLongestQuoted;
  const std::size_t window = std::min(text.size(), furthest);
  const Fate without_end = is_whole || window == furthest ? Fate::Open : Fate::Undecided;
  for (std::size_t at = opener + 1;; at += 2, quote.doubled = true) {
    at = Find(text, '"', at, window);
    if (at >= window) return {without_end, 0, quote.doubled};
    quote.close = at;
    if (at + 1 == text.size()) {
      quote.fate = is_whole ? Fate::Closed : Fate::Undecided;
      return quote;
    }
    if (text[at + 1] != '"') break;
  }
  const char next = text[quote.close + 1];
  if (next == delimiter || IsLineEnd(next)) {
    quote.fate = Fate::Closed;
  } else {
    quote.fate = HasLineEnd(text.substr(opener, quote.close - opener)) ? Fate::Open : Fate::TextAfter;
  }
  return quote;
}

std::size_t CountLineEnds(std::string_view text) noexcept {
  if (text.empty()) return 0;
  constexpr std::size_t kPiece = 240;
  std::size_t count = IsLineEnd(text.back()) ? 1 : 0;
  const std::size_t last = text.size() - 1;
  for (std::size_t at = 0; at < last; at += kPiece) {
    count += CountInPiece(text.data() + at, std::min(kPiece, last - at));
  }
  return count;
}

std::string_view Unescaped(std::string_view quoted, std::string& space) {
  space.clear();
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    space += quoted[i];
    if (quoted[i] == '"') ++i;
  }
  return space;
}

bool RowScanner::SkipEmptyLines() {
  for (; at_ < text_.size() && IsLineEnd(text_[at_]); ++at_) {
    const bool is_pair = text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
    if (!is_pair) ++line_;
  }
  return at_ < text_.size();
}

TableField* TableFields::Space(std::size_t count) {
  size_ += count;
  if (size_ > added_.size()) added_.resize(size_ * 2);
  return added_.data() + size_ - count;
}

std::size_t TableFields::Add(const char* text, std::size_t begin, std::span<const std::size_t> ends) {
  TableField* field = Space(ends.size());
  for (const std::size_t end : ends) {
    *field++ = {{text + begin, end - begin}, false};
    begin = end + 1;
  }
  return begin;
}

bool RowScanner::Next(TableRow& row) {
  if (!SkipEmptyLines()) return false;
  row.begin = at_;
  row.line = line_;
  row.quote = Fate::Closed;
  const std::size_t end = ReadFields(row);
  if (end < text_.size()) ++line_;
  at_ = PastLineEnd(end);
  row.end = at_;
  return true;
}

// Returns the index of the line end or the size.
std::size_t RowScanner::ReadFields(TableRow& row) {
  const std::span<const std::size_t> ends = marks_.FieldsFrom(at_);
  if (!ends.empty() && text_[ends.back()] != '"') {
    row.fields.Set(text_.data(), at_, ends);
    return ends.back();
  }
  row.fields.Clear();
  if (!ends.empty()) at_ = row.fields.Add(text_.data(), at_, ends.first(ends.size() - 1));
  std::size_t end = ReadField(row);
  for (; IsAt(end, delimiter_); end = ReadField(row)) at_ = end + 1;
  return end;
}

// Returns the index of the delimiter or line end of the field at at_, or the size.
std::size_t RowScanner::ReadField(TableRow& row) {
  const std::size_t end = marks_.Next(at_);
  if (IsAt(end, '"')) return ReadWithQuote(row);
  row.fields.Add({text_.substr(at_, end - at_), false});
  return end;
}

// Reads the field at at_, which has a quote; returns the index of its delimiter or line end, or the size.
std::size_t RowScanner::ReadWithQuote(TableRow& row) {
  if (text_[at_] == '"' && ReadQuoted(row)) return at_;
  std::size_t end = marks_.Next(at_);
  while (end < text_.size() && text_[end] == '"') end = marks_.Next(end + 1);
  row.fields.Add({text_.substr(at_, end - at_), false});
  return end;
}

// Returns false, with the row marked, if the quote at at_ opens no field.
bool RowScanner::ReadQuoted(TableRow& row) {
  const OpeningQuote quote = ReadQuote(text_, at_, delimiter_, true);
  if (quote.fate != Fate::Closed) {
    if (row.quote == Fate::Closed) row.quote_line = line_;
    if (row.quote == Fate::Closed) row.quote = quote.fate;
    return false;
  }
  const std::string_view inside = text_.substr(at_ + 1, quote.close - at_ - 1);
  line_ += CountLineEnds(inside);
  row.fields.Add({inside, quote.doubled});
  at_ = quote.close + 1;
  return true;
}

// Returns the index past the line end at `at`, if there is one.
std::size_t RowScanner::PastLineEnd(std::size_t at) const {
  if (at == text_.size()) return at;
  const bool is_pair = text_[at] == '\r' && at + 1 < text_.size() && text_[at + 1] == '\n';
  return at + (is_pair ? 2 : 1);
}

}  // namespace tool

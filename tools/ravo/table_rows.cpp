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

RowScanner::RowScanner(std::string_view text, char delimiter, std::size_t first_line)
    : text_(text),
      delimiter_(delimiter),
      line_(first_line),
      line_feed_(Find(text, '\n', 0, text.size())),
      line_end_(Find(text, '\r', 0, line_feed_)) {}

bool RowScanner::SkipEmptyLines() {
  for (; at_ < text_.size() && IsLineEnd(text_[at_]); ++at_) {
    const bool is_pair = text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
    if (!is_pair) ++line_;
  }
  return at_ < text_.size();
}

bool RowScanner::Next(TableRow& row) {
  if (!SkipEmptyLines()) return false;
  row.fields.clear();
  row.begin = at_;
  row.line = line_;
  row.quote = Fate::Closed;
  const std::size_t line_end = LineFeed();
  const bool has_return = line_end > at_ && text_[line_end - 1] == '\r';
  const std::size_t text_end = has_return ? line_end - 1 : line_end;
  const bool is_plain =
      Find(text_, '\r', at_, text_end) == text_end && Find(text_, '"', at_, text_end) == text_end;
  if (is_plain) {
    SplitPlain(row, text_end);
    at_ = std::min(line_end + 1, text_.size());
    line_ += line_end < text_.size() || has_return ? 1 : 0;
  } else {
    SplitCareful(row);
  }
  row.end = at_;
  return true;
}

// A line without quotes and lone carriage returns, as most lines are: only delimiters to find.
void RowScanner::SplitPlain(TableRow& row, std::size_t text_end) const {
  for (std::size_t at = at_;; ++at) {
    const std::size_t field_end = Find(text_, delimiter_, at, text_end);
    row.fields.push_back({{text_.data() + at, field_end - at}, false});
    at = field_end;
    if (at == text_end) return;
  }
}

void RowScanner::SplitCareful(TableRow& row) {
  for (;; ++at_) {
    ReadField(row);
    if (at_ == text_.size()) return;
    if (text_[at_] == delimiter_) continue;
    at_ = PastLineEnd(at_);
    ++line_;
    return;
  }
}

// Reads the field at at_, up to its delimiter, line end or the end of the text.
void RowScanner::ReadField(TableRow& row) {
  const std::size_t first = at_;
  if (first < text_.size() && text_[first] == '"' && ReadQuoted(row)) return;
  at_ = Find(text_, delimiter_, at_, LineEnd());
  row.fields.push_back({text_.substr(first, at_ - first), false});
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
  row.fields.push_back({inside, quote.doubled});
  at_ = quote.close + 1;
  return true;
}

// Returns the index of the next line feed, or the size.
std::size_t RowScanner::LineFeed() {
  if (line_feed_ < at_) line_feed_ = Find(text_, '\n', at_, text_.size());
  return line_feed_;
}

// Returns the index of the first byte of the next line end, or the size.
std::size_t RowScanner::LineEnd() {
  if (line_end_ < at_) line_end_ = Find(text_, '\r', at_, LineFeed());
  return line_end_;
}

// Returns the index past the line end at `at`.
std::size_t RowScanner::PastLineEnd(std::size_t at) const {
  const bool is_pair = text_[at] == '\r' && at + 1 < text_.size() && text_[at + 1] == '\n';
  return at + (is_pair ? 2 : 1);
}

}  // namespace tool

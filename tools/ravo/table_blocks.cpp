#include "table_blocks.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tool {
namespace {

using Fate = OpeningQuote::Fate;

constexpr std::size_t kNone = std::string_view::npos;

// Finds the last place in a growing text up to which all rows are complete.
class SafeEnd {
 public:
  explicit SafeEnd(char delimiter) : delimiter_(delimiter) {}

  // Returns 0 if there is no complete row. `text` begins with the text of the call before.
  std::size_t In(std::string_view text) {
    const std::size_t open = SkipQuoted(text);
    KeepLineEnd(text, open);
    return safe_;
  }

 private:
  // Moves at_ past all quotes whose fate is known; returns the first one whose is not, or the end.
  std::size_t SkipQuoted(std::string_view text) {
    while ((at_ = std::min(text.find('"', at_), text.size())) < text.size()) {
      const bool opens =
          at_ == 0 || text[at_ - 1] == delimiter_ || text[at_ - 1] == '\n' || text[at_ - 1] == '\r';
      const OpeningQuote quote =
          opens ? ReadQuote(text, at_, delimiter_, false) : OpeningQuote{Fate::Open, 0, false};
      if (quote.fate == Fate::Undecided) break;
      if (quote.fate == Fate::Closed) SkipField(text, quote.close);
      ++at_;
    }
    return at_;
  }

  void SkipField(std::string_view text, std::size_t close) {
    const std::string_view inside = text.substr(at_, close - at_);
    if (inside.find('\n') != kNone || inside.find('\r') != kNone) {
      KeepLineEnd(text, at_);
      outside_ = close + 1;
    }
    at_ = close;
  }

  // Remembers the last line end of text[outside_, to), none of which is quoted.
  void KeepLineEnd(std::string_view text, std::size_t to) {
    const std::string_view piece = text.substr(outside_, to - outside_);
    std::size_t found = piece.rfind('\n');
    // The line feed of a carriage return may be yet to come.
    if (found == kNone) found = outside_ + piece.size() < text.size() ? piece.rfind('\r') : BeforeLast(piece);
    if (found != kNone) safe_ = outside_ + found + 1;
  }

  static std::size_t BeforeLast(std::string_view piece) {
    return piece.empty() ? kNone : piece.substr(0, piece.size() - 1).rfind('\r');
  }

  char delimiter_;
  std::size_t at_ = 0;
  std::size_t outside_ = 0;  // past the last quoted field with a line end
  std::size_t safe_ = 0;
};

}  // namespace

BlockReader::BlockReader(Source source, std::size_t block) : source_(std::move(source)), block_(block) {}

// Reads until `buffer` has `wanted` bytes, of which it has `filled`, or the source ends; returns how many
// there are.
std::size_t BlockReader::Fill(std::vector<char>& buffer, std::size_t filled, std::size_t wanted) {
  if (buffer.size() < wanted) buffer.resize(wanted);
  while (!at_end_ && filled < wanted) {
    const std::size_t got = source_(std::span(buffer).subspan(filled, wanted - filled));
    at_end_ = got == 0;
    bytes_read_ += got;
    filled += got;
  }
  return filled;
}

std::string_view BlockReader::Peek(std::size_t size) {
  const std::size_t filled = rest_.size();
  rest_.resize(Fill(rest_, filled, std::max(size, filled)));
  return {rest_.data(), std::min(size, rest_.size())};
}

void BlockReader::Begin(char delimiter, std::size_t skipped) {
  delimiter_ = delimiter;
  rest_.erase(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(skipped));
  offset_ = skipped;
}

bool BlockReader::Next(TableBlock& block) {
  std::size_t filled = rest_.size();
  if (block.buffer.size() < filled) block.buffer.resize(filled);
  std::copy(rest_.begin(), rest_.end(), block.buffer.begin());
  SafeEnd safe(delimiter_);
  std::size_t end = 0;
  for (std::size_t wanted = std::max(block_, filled); end == 0; wanted = filled * 2) {
    filled = Fill(block.buffer, filled, wanted);
    if (filled == 0) return false;
    end = at_end_ ? filled : safe.In({block.buffer.data(), filled});
  }
  rest_.assign(block.buffer.begin() + static_cast<std::ptrdiff_t>(end),
               block.buffer.begin() + static_cast<std::ptrdiff_t>(filled));
  block.size = end;
  if (block.buffer.size() < end + TableBlock::kPadding) block.buffer.resize(end + TableBlock::kPadding);
  block.first_line = next_line_;
  block.offset = offset_;
  next_line_ += CountLineEnds(block.Text());
  offset_ += end;
  return true;
}

}  // namespace tool

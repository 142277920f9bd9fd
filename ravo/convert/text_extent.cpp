#include <ravo/convert/text_extent.h>

#include <algorithm>

namespace ravo::convert {
namespace {

// Few enough for a count of eight bits. The compiler makes vectors of a loop of known length.
constexpr std::size_t kAtOnce = 240;

// Each break is counted at its carriage return or before its line feed: a pair counts once.
template <class Unit>
bool EndsLine(const Unit* at) {
  return (at[0] == '\r') | (at[1] == '\n');
}

template <class Unit>
std::uint64_t CountBreaks(std::span<const Unit> text) {
  if (text.empty()) return 0;
  std::uint64_t count = (text.front() == '\n' ? 1U : 0U) + (text.back() == '\r' ? 1U : 0U);
  std::size_t at = 0;
  for (; at + kAtOnce < text.size(); at += kAtOnce) {
    const Unit* const part = text.data() + at;
    Unit here = 0;
    for (std::size_t i = 0; i < kAtOnce; ++i) here = static_cast<Unit>(here + (EndsLine(part + i) ? 1 : 0));
    count += here;
  }
  for (; at + 1 < text.size(); ++at) count += EndsLine(text.data() + at) ? 1 : 0;
  return count;
}

std::uint64_t CountCharacters(std::u16string_view text) {
  const auto is_second = [](char16_t c) { return (c & 0xFC00) == 0xDC00; };
  return text.size() - static_cast<std::uint64_t>(std::ranges::count_if(text, is_second));
}

// The text after the last line break, of which there are `breaks`.
std::u16string_view LastLine(std::u16string_view text, std::uint64_t breaks) {
  return breaks == 0 ? text : text.substr(text.find_last_of(u"\r\n") + 1);
}

}  // namespace

TextExtent::TextExtent(std::u16string_view text, std::uint64_t breaks)
    : breaks_(breaks), column_(CountCharacters(LastLine(text, breaks))), is_empty_(text.empty()) {
  if (is_empty_) return;
  begins_with_feed_ = text.front() == u'\n';
  ends_with_return_ = text.back() == u'\r';
}

TextExtent::TextExtent(std::u16string_view text) : TextExtent(text, CountBreaks(std::span(text))) {}

TextExtent::TextExtent(std::u16string_view text, std::span<const std::uint8_t> bytes)
    : TextExtent(text, CountBreaks(bytes)) {}

TextExtent& TextExtent::operator+=(const TextExtent& next) {
  if (next.is_empty_) return *this;
  const bool one_break = ends_with_return_ && next.begins_with_feed_;
  column_ = next.breaks_ != 0 ? next.column_ : column_ + next.column_;
  breaks_ += next.breaks_ - (one_break ? 1 : 0);
  begins_with_feed_ = is_empty_ ? next.begins_with_feed_ : begins_with_feed_;
  ends_with_return_ = next.ends_with_return_;
  is_empty_ = false;
  return *this;
}

}  // namespace ravo::convert

#include <ravo/utils/strings/white_space.h>
#include <ravo/utils/strings/word_separator.h>
#include <ravo/utils/strings/words.h>

#include <algorithm>

namespace ravo::DIUtils {
namespace {

using strings::IsOneOf;
using strings::String;
using strings::View;

template <class Char, class Test>
View<Char> NextWord(View<Char> text, Test is_separator, std::size_t& position) {
  std::size_t start = std::min(strings::Place(position), text.size());
  while (start < text.size() && is_separator(text[start])) ++start;
  std::size_t end = start;
  while (end < text.size() && !is_separator(text[end])) ++end;
  position = strings::Position(end);
  return text.substr(start, end - start);
}

template <class Char>
String<Char> WordStarts(View<Char> text, std::size_t count) {
  String<Char> starts;
  const auto is_separator = [](Char c) { return strings::IsWordSeparator(c); };
  for (std::size_t position = 1; starts.size() < count;) {
    const View<Char> word = NextWord(text, is_separator, position);
    if (word.empty()) break;
    starts.push_back(word.front());
  }
  return starts;
}

}  // namespace

std::string ExtractWordA(std::string_view text, std::string_view separators, std::size_t position) {
  return ExtractNextWordA(text, separators, position);
}

std::string ExtractNextWordA(std::string_view text, std::string_view separators, std::size_t& position) {
  return std::string(NextWord(text, IsOneOf(separators), position));
}
std::string ExtractNextWordA(std::string_view text, CharTestA is_separator, std::size_t& position) {
  return std::string(NextWord(text, is_separator, position));
}
std::u16string ExtractNextWordW(std::u16string_view text, std::u16string_view separators,
                                std::size_t& position) {
  return std::u16string(NextWord(text, IsOneOf(separators), position));
}
std::u16string ExtractNextWordW(std::u16string_view text, CharTestW is_separator, std::size_t& position) {
  return std::u16string(NextWord(text, is_separator, position));
}
std::u16string ExtractNextWord(std::u16string_view text, std::u16string_view separators,
                               std::size_t& position) {
  return ExtractNextWordW(text, separators, position);
}
std::u16string ExtractNextWord(std::u16string_view text, CharTestW is_separator, std::size_t& position) {
  return ExtractNextWordW(text, is_separator, position);
}

std::string ExtractWordStartsA(std::string_view text, std::size_t count) { return WordStarts(text, count); }
std::u16string ExtractWordStartsW(std::u16string_view text, std::size_t count) {
  return WordStarts(text, count);
}

}  // namespace ravo::DIUtils

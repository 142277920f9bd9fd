#include <ravo/utils/strings/assemble.h>
#include <ravo/utils/strings/char_search.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/text_length.h>

#include <utility>

namespace ravo::DIUtils {
namespace {

using strings::String;
using strings::View;

template <class Char>
std::size_t Missing(View<Char> text, std::ptrdiff_t length) {
  return std::cmp_greater(length, text.size()) ? utils::CheckedLength<Char>(length) - text.size() : 0;
}

template <class Char>
String<Char> PaddedLeft(View<Char> text, std::ptrdiff_t length, Char fill) {
  String<Char> result;
  const std::size_t missing = Missing(text, length);
  result.reserve(text.size() + missing);
  return result.append(missing, fill).append(text);
}

template <class Char>
String<Char> PaddedRight(View<Char> text, std::ptrdiff_t length, Char fill) {
  String<Char> result;
  const std::size_t missing = Missing(text, length);
  result.reserve(text.size() + missing);
  return result.append(text).append(missing, fill);
}

template <class Char>
String<Char> EndingWith(View<Char> text, Char c) {
  String<Char> result(text);
  if (!text.ends_with(c)) result.push_back(c);
  return result;
}

}  // namespace

std::string PadLeftA(std::string_view text, std::ptrdiff_t length, char fill) {
  return PaddedLeft(text, length, fill);
}
std::u16string PadLeftW(std::u16string_view text, std::ptrdiff_t length, char16_t fill) {
  return PaddedLeft(text, length, fill);
}
std::string PadRightA(std::string_view text, std::ptrdiff_t length, char fill) {
  return PaddedRight(text, length, fill);
}
std::u16string PadRightW(std::u16string_view text, std::ptrdiff_t length, char16_t fill) {
  return PaddedRight(text, length, fill);
}

void ConCatBufA(std::string& target, const char* buffer, std::size_t length) {
  target.append(strings::Buffer(buffer, length));
}
void ConCatBufW(std::u16string& target, const char16_t* buffer, std::size_t length) {
  target.append(strings::Buffer(buffer, length));
}
void ConCatBuf(std::u16string& target, const char16_t* buffer, std::size_t length) {
  ConCatBufW(target, buffer, length);
}
void ConCatCharA(std::string& target, char c) { target.push_back(c); }
void ConCatCharW(std::u16string& target, char16_t c) { target.push_back(c); }
void ConCatChar(std::u16string& target, char16_t c) { ConCatCharW(target, c); }
void ConCatStrA(std::string& target, std::string_view text) { target.append(text); }
void ConCatStrW(std::u16string& target, std::u16string_view text) { target.append(text); }
void ConCatStr(std::u16string& target, std::u16string_view text) { ConCatStrW(target, text); }

std::string StrIncludeTrailingCharA(std::string_view text, char c) { return EndingWith(text, c); }
std::u16string StrIncludeTrailingCharW(std::u16string_view text, char16_t c) { return EndingWith(text, c); }
std::u16string StrIncludeTrailingChar(std::u16string_view text, char16_t c) {
  return StrIncludeTrailingCharW(text, c);
}

bool StrIsEmptyA(std::string_view text) noexcept { return text.empty(); }
bool StrIsEmptyW(std::u16string_view text) noexcept { return text.empty(); }
bool StrIsEmpty(std::u16string_view text) noexcept { return StrIsEmptyW(text); }

std::size_t StrLenW(const char16_t* text) noexcept {
  return text ? std::char_traits<char16_t>::length(text) : 0;
}

std::u16string QuotedStrW(std::u16string_view text, char16_t quote) {
  std::u16string result(text.size() + StrCountCharW(quote, text) + 2, quote);
  std::size_t at = 1;
  for (const char16_t c : text) {
    result[at++] = c;
    // Skips the doubled quote.
    if (c == quote) ++at;
  }
  return result;
}

}  // namespace ravo::DIUtils

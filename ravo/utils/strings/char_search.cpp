#include <ravo/utils/strings/char_search.h>
#include <ravo/utils/strings/text_kind.h>

#include <algorithm>

namespace ravo::DIUtils {
namespace {

using strings::Buffer;
using strings::Place;
using strings::Position;
using strings::View;
using ViewA = std::string_view;
using ViewW = std::u16string_view;

// The target of a search: a test of one character.
template <class Char>
auto Is(Char wanted) {
  return [wanted](Char c) { return c == wanted; };
}
template <class Char>
auto IsIn(View<Char> chars) {
  return [chars](Char c) { return chars.find(c) != View<Char>::npos; };
}
template <class Char>
auto IsNotIn(View<Char> chars) {
  return [chars](Char c) { return chars.find(c) == View<Char>::npos; };
}

template <class Char, class Test>
std::size_t First(View<Char> text, std::size_t start, Test test) {
  for (std::size_t at = Place(start); at < text.size(); ++at) {
    if (test(text[at])) return Position(at);
  }
  return 0;
}

template <class Char, class Test>
std::size_t Last(View<Char> text, std::size_t start, Test test) {
  for (std::size_t at = std::min(Place(start) + 1, text.size()); at-- > 0;) {
    if (test(text[at])) return Position(at);
  }
  return 0;
}

template <class Char>
std::size_t Count(Char c, View<Char> text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), c));
}

}  // namespace

std::size_t StrPosCharA(char c, ViewA text, std::size_t start) noexcept { return First(text, start, Is(c)); }
std::size_t StrPosCharW(char16_t c, ViewW text, std::size_t start) noexcept {
  return First(text, start, Is(c));
}
std::size_t StrPosChar(char16_t c, ViewW text, std::size_t start) noexcept {
  return StrPosCharW(c, text, start);
}

std::size_t StrPosCharBackA(char c, ViewA text, std::size_t start) noexcept {
  return Last(text, start, Is(c));
}
std::size_t StrPosCharBackW(char16_t c, ViewW text, std::size_t start) noexcept {
  return Last(text, start, Is(c));
}

std::size_t StrPosCharsA(ViewA chars, ViewA text, std::size_t start) noexcept {
  return First(text, start, IsIn(chars));
}
std::size_t StrPosCharsW(ViewW chars, ViewW text, std::size_t start) noexcept {
  return First(text, start, IsIn(chars));
}
std::size_t BufPosCharsA(ViewA chars, const char* buffer, std::size_t length, std::size_t start) noexcept {
  return StrPosCharsA(chars, Buffer(buffer, length), start);
}
std::size_t BufPosCharsW(ViewW chars, const char16_t* buffer, std::size_t length,
                         std::size_t start) noexcept {
  return StrPosCharsW(chars, Buffer(buffer, length), start);
}
std::size_t StrPosCharsBackA(ViewA chars, ViewA text, std::size_t start) noexcept {
  return Last(text, start, IsIn(chars));
}

std::size_t StrPosNotCharsA(ViewA chars, ViewA text, std::size_t start) noexcept {
  return First(text, start, IsNotIn(chars));
}
std::size_t StrPosNotCharsW(ViewW chars, ViewW text, std::size_t start) noexcept {
  return First(text, start, IsNotIn(chars));
}
std::size_t StrPosNotCharsBackA(ViewA chars, ViewA text, std::size_t start) noexcept {
  return Last(text, start, IsNotIn(chars));
}

bool StrContainsCharA(char c, ViewA text) noexcept { return StrPosCharA(c, text) != 0; }
bool StrContainsCharW(char16_t c, ViewW text) noexcept { return StrPosCharW(c, text) != 0; }
bool StrContainsChar(char16_t c, ViewW text) noexcept { return StrContainsCharW(c, text); }

bool StrContainsCharsA(ViewA chars, ViewA text) noexcept { return StrPosCharsA(chars, text) != 0; }
bool StrHasCharsW(ViewW chars, ViewW text) noexcept { return StrPosCharsW(chars, text) != 0; }
bool StrHasCharsW(CharTestW test, ViewW text) { return std::any_of(text.begin(), text.end(), test); }
bool BufHasCharsW(ViewW chars, const char16_t* buffer, std::size_t length) noexcept {
  return StrHasCharsW(chars, Buffer(buffer, length));
}
bool BufHasCharsW(CharTestW test, const char16_t* buffer, std::size_t length) {
  return StrHasCharsW(test, Buffer(buffer, length));
}

bool StrConsistsOfW(ViewW chars, ViewW text) noexcept { return StrPosNotCharsW(chars, text) == 0; }
bool BufIsCharsW(ViewW chars, const char16_t* buffer, std::size_t length) noexcept {
  return StrConsistsOfW(chars, Buffer(buffer, length));
}
bool BufIsCharsW(CharTestW test, const char16_t* buffer, std::size_t length) {
  const ViewW text = Buffer(buffer, length);
  return std::all_of(text.begin(), text.end(), test);
}

std::size_t StrCountCharA(char c, ViewA text) noexcept { return Count(c, text); }
std::size_t StrCountCharW(char16_t c, ViewW text) noexcept { return Count(c, text); }
std::size_t StrCountChar(char16_t c, ViewW text) noexcept { return StrCountCharW(c, text); }

}  // namespace ravo::DIUtils

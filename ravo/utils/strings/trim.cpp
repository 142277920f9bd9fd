#include <ravo/utils/strings/trim.h>
#include <ravo/utils/strings/white_space.h>

namespace ravo::DIUtils {
namespace {

using strings::IsOneOf;
using strings::String;
using strings::View;
using strings::WhiteSpaceTest;

template <class Char, class Test>
View<Char> LeftTrimmed(View<Char> text, Test test) {
  while (!text.empty() && test(text.front())) text.remove_prefix(1);
  return text;
}

template <class Char, class Test>
View<Char> RightTrimmed(View<Char> text, Test test) {
  while (!text.empty() && test(text.back())) text.remove_suffix(1);
  return text;
}

template <class Char, class Test>
String<Char> Trimmed(View<Char> text, Test test) {
  return String<Char>(LeftTrimmed(RightTrimmed(text, test), test));
}

// Compacts in place: the write position never overtakes the read position.
template <class Char, class Test>
void TrimAndCompress(String<Char>& text, Char replacement, Test test) {
  std::size_t written = 0;
  bool is_run = false;
  for (const Char c : text) {
    if (test(c)) {
      is_run = written != 0;
      continue;
    }
    if (is_run) text[written++] = replacement;
    is_run = false;
    text[written++] = c;
  }
  text.resize(written);
}

template <class Char, class Test>
void TrimAndCompressBy(String<Char>& text, Test test, Char replacement) {
  if (test) return TrimAndCompress(text, replacement, test);
  TrimAndCompress(text, replacement, WhiteSpaceTest());
}

}  // namespace

std::string StrTrimA(std::string_view text) { return Trimmed(text, WhiteSpaceTest()); }
std::u16string StrTrimW(std::u16string_view text) { return Trimmed(text, WhiteSpaceTest()); }
std::u16string StrTrim(std::u16string_view text) { return StrTrimW(text); }

std::string StrTrimCharA(std::string_view text, char c) { return StrTrimCharsA(text, {&c, 1}); }
std::string StrTrimCharsA(std::string_view text, std::string_view chars) {
  return Trimmed(text, IsOneOf(chars));
}
std::u16string StrTrimCharsW(std::u16string_view text, std::u16string_view chars) {
  return Trimmed(text, IsOneOf(chars));
}

void TrimLeftByRefA(std::string& text) {
  text.erase(0, text.size() - LeftTrimmed(std::string_view(text), WhiteSpaceTest()).size());
}
std::string TrimRightA(std::string_view text) { return std::string(RightTrimmed(text, WhiteSpaceTest())); }
void TrimRightByRefA(std::string& text) {
  text.resize(RightTrimmed(std::string_view(text), WhiteSpaceTest()).size());
}
void TrimRightByRefW(std::u16string& text) {
  text.resize(RightTrimmed(std::u16string_view(text), WhiteSpaceTest()).size());
}

void StrTrimCompressA(std::string& text, CharTestA test, char replacement) {
  TrimAndCompressBy(text, test, replacement);
}
void StrTrimCompressW(std::u16string& text, CharTestW test, char16_t replacement) {
  TrimAndCompressBy(text, test, replacement);
}

}  // namespace ravo::DIUtils

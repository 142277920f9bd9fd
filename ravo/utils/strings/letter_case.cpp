#include <ravo/utils/strings/letter_case.h>
#include <ravo/utils/strings/word_separator.h>

namespace ravo::DIUtils {
namespace {

using strings::String;

struct Upper {
  static char Of(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }
  static char16_t Of(char16_t c) { return DIUnicode::UpperUnit(c); }
};

struct Lower {
  static char Of(char c) { return strings::Folded::Of(c); }
  static char16_t Of(char16_t c) { return DIUnicode::LowerUnit(c); }
};

template <class Case, class Char>
void Map(String<Char>& text) {
  for (Char& c : text) c = Case::Of(c);
}

template <class Case, class Char>
String<Char> Mapped(strings::View<Char> text) {
  String<Char> result(text);
  Map<Case>(result);
  return result;
}

template <class Char>
void MakeProper(String<Char>& text) {
  bool is_start = true;
  for (Char& c : text) {
    c = is_start ? Upper::Of(c) : Lower::Of(c);
    is_start = strings::IsWordSeparator(c);
  }
}

}  // namespace

std::string StrToUpperA(std::string_view text) { return Mapped<Upper>(text); }
std::u16string StrToUpperW(std::u16string_view text) { return Mapped<Upper>(text); }
std::u16string StrToUpper(std::u16string_view text) { return StrToUpperW(text); }
void StrToUpperInPlaceA(std::string& text) noexcept { Map<Upper>(text); }
void StrToUpperInPlaceW(std::u16string& text) noexcept { Map<Upper>(text); }
void StrToUpperInPlace(std::u16string& text) noexcept { StrToUpperInPlaceW(text); }

std::string StrToLowerA(std::string_view text) { return Mapped<Lower>(text); }
std::u16string StrToLowerW(std::u16string_view text) { return Mapped<Lower>(text); }
std::u16string StrToLower(std::u16string_view text) { return StrToLowerW(text); }
void StrToLowerInPlaceA(std::string& text) noexcept { Map<Lower>(text); }
void StrToLowerInPlaceW(std::u16string& text) noexcept { Map<Lower>(text); }
void StrToLowerInPlace(std::u16string& text) noexcept { StrToLowerInPlaceW(text); }

void ProperCaseByRefA(std::string& text) noexcept { MakeProper(text); }
void ProperCaseByRefW(std::u16string& text) noexcept { MakeProper(text); }

std::string ProperCaseA(std::string_view text) {
  std::string result(text);
  ProperCaseByRefA(result);
  return result;
}
std::u16string ProperCaseW(std::u16string_view text) {
  std::u16string result(text);
  ProperCaseByRefW(result);
  return result;
}

}  // namespace ravo::DIUtils

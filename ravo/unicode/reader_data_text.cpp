// The collected characters as text, trimmed or whole, and tests of them.
#include <ravo/runtime/text.h>
#include <ravo/unicode/characters/mappings.h>
#include <ravo/unicode/code_pages.h>
#include <ravo/unicode/predicates.h>
#include <ravo/unicode/unicode_reader.h>

#include <algorithm>

namespace ravo::DIUnicode {
namespace {

using unicode::OrWhiteSpace;

std::u16string_view TrimmedLeft(std::u16string_view text, CharPredicate validate) {
  text.remove_prefix(
      static_cast<std::size_t>(std::ranges::find_if_not(text, OrWhiteSpace(validate)) - text.begin()));
  return text;
}

std::u16string_view TrimmedRight(std::u16string_view text, CharPredicate validate) {
  const CharPredicate passes = OrWhiteSpace(validate);
  while (!text.empty() && passes(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace

void TDIUnicodeReader::TrimDataRight(CharPredicate Validate) { FDataSize = TrimmedRightDataLength(Validate); }

std::uint32_t TDIUnicodeReader::TrimmedDataLength(CharPredicate Validate) const {
  return static_cast<std::uint32_t>(TrimmedDataStartAndLength(Validate).size());
}

std::uint32_t TDIUnicodeReader::TrimmedRightDataLength(CharPredicate Validate) const {
  return static_cast<std::uint32_t>(TrimmedRight(Data(), Validate).size());
}

std::u16string_view TDIUnicodeReader::TrimmedDataStartAndLength(CharPredicate Validate) const {
  return TrimmedLeft(TrimmedRight(Data(), Validate), Validate);
}

std::u16string_view TDIUnicodeReader::TrimmedLeftDataStartAndLength(CharPredicate Validate) const {
  return TrimmedLeft(Data(), Validate);
}

std::u16string TDIUnicodeReader::DataAsStrTrimW(CharPredicate Validate) const {
  return std::u16string(TrimmedDataStartAndLength(Validate));
}

std::u16string TDIUnicodeReader::DataAsStrTrimLeftW(CharPredicate Validate) const {
  return std::u16string(TrimmedLeftDataStartAndLength(Validate));
}

std::string TDIUnicodeReader::DataAsStr8() const { return ToUtf8(Data()); }

std::string TDIUnicodeReader::DataAsStrA(std::uint32_t CodePage) const {
  return ToCodePage(Data(), CodePage);
}

std::string TDIUnicodeReader::DataAsStrTrimA(std::uint32_t CodePage, CharPredicate Validate) const {
  return ToCodePage(TrimmedDataStartAndLength(Validate), CodePage);
}

std::string TDIUnicodeReader::DataToStrA() const { return DataAsStrA(kSystemCodePage); }

std::string TDIUnicodeReader::DataToStrTrimA(CharPredicate Validate) const {
  return DataAsStrTrimA(kSystemCodePage, Validate);
}

bool TDIUnicodeReader::DataIsChars(CharPredicate Validate) const {
  return std::ranges::all_of(Data(), OrWhiteSpace(Validate));
}

bool TDIUnicodeReader::DataHasChars(CharPredicate Validate) const {
  return std::ranges::any_of(Data(), OrWhiteSpace(Validate));
}

bool TDIUnicodeReader::DataIsStrIW(std::u16string_view AString) const noexcept {
  return std::ranges::equal(Data(), AString, {}, CharToCaseFoldW, CharToCaseFoldW);
}

}  // namespace ravo::DIUnicode

// Foreign texts: numbers, search, replacement, order, quoting, words.
#include <ravo/DIUtils.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace ravo::DIUtils;

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckNumbers(std::string_view bytes) {
  std::size_t error = 0;
  const std::int64_t value = ValInt64A(bytes, error);
  Require(error <= bytes.size() + 1);
  std::size_t error_of_text = 0;
  if (error == 0) Require(ValInt64A(IntToStrA(value), error_of_text) == value && error_of_text == 0);
  static_cast<void>(ValIntA(bytes, error));
  static_cast<void>(HexToIntA(bytes));
}

// Words and separators compose the whole text, and the position always advances.
void CheckWords(std::u16string_view text) {
  std::size_t position = 1;
  std::size_t letters = 0;
  for (std::size_t before = 0; position <= text.size();) {
    Require(position > before);
    before = position;
    letters += ExtractNextWordW(text, u" ,", position).size();
  }
  Require(letters == text.size() - StrCountCharW(u' ', text) - StrCountCharW(u',', text));
}

// Folds both texts completely, then searches.
std::size_t FoundFolded(std::u16string search, std::u16string text) {
  for (std::u16string* folded : {&search, &text}) {
    for (char16_t& c : *folded) c = CharToCaseFoldW(c);
  }
  const std::size_t at = search.empty() ? std::u16string::npos : text.find(search);
  return at == std::u16string::npos ? 0 : at + 1;
}

// UTF-8, to cover letters of every script; malformed sequences become letters as well.
std::u16string Wide(std::string_view bytes) { return StrDecodeUtf8(bytes); }

// The first line is the search text; the rest is the text.
void CheckPairs(std::string_view bytes) {
  const std::size_t end = std::min(bytes.find('\n'), bytes.size());
  const std::string_view first = bytes.substr(0, end);
  const std::string_view rest = bytes.substr(std::min(end + 1, bytes.size()));
  const std::u16string wide_first = Wide(first);
  const std::u16string wide_rest = Wide(rest);
  const std::size_t at = first.empty() ? std::string_view::npos : rest.find(first);
  Require(StrPosA(first, rest) == (at == std::string_view::npos ? 0 : at + 1));
  const std::size_t wide_at = wide_first.empty() ? std::u16string::npos : wide_rest.find(wide_first);
  Require(StrPosW(wide_first, wide_rest) == (wide_at == std::u16string::npos ? 0 : wide_at + 1));
  Require(StrReplaceA(rest, first, first) == rest);
  Require(FoundFolded(wide_first, wide_rest) == StrPosIW(wide_first, wide_rest));
  Require((StrCompIW(wide_first, wide_rest) == 0) == StrSameIW(wide_first, wide_rest));
  Require((StrCompNumW(wide_first, wide_rest) < 0) == (StrCompNumW(wide_rest, wide_first) > 0));
  Require(QuotedStrW(wide_rest).size() == wide_rest.size() + StrCountCharW(u'"', wide_rest) + 2);
  CheckWords(wide_rest);
  Require(StrTrimA(rest).size() <= rest.size() && ProperCaseW(wide_rest).size() == wide_rest.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  CheckNumbers(bytes);
  CheckPairs(bytes);
  return 0;
}

// Foreign texts: UTF-8, addresses of the web, numbers, masks, quoting.
#include <ravo/DIUtils.h>
#include <ravo/utils/strings/utf8_kernels.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

using namespace ravo::DIUtils;

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckUtf8(std::string_view bytes) {
  const std::u16string text = StrDecodeUtf8(bytes);
  std::u16string plain(bytes.size(), u'\0');
  plain.resize(
      static_cast<std::size_t>(ravo::strings::DecodeUtf8Plainly(bytes, plain.data()) - plain.data()));
  Require(text == plain && StrCountUtf8Chars(bytes) == text.size());
  Require(StrDecodeUtf8(StrEncodeUtf8(text)) == text);
}

void CheckUrl(std::string_view bytes) {
  Require(StrDecodeUrlA(StrEncodeUrlA(bytes)) == bytes);
  Require(StrDecodeUrlA(bytes).size() <= bytes.size());
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

// The first line is a mask, or what is searched for; the rest is the text.
void CheckPairs(std::string_view bytes) {
  const std::size_t end = std::min(bytes.find('\n'), bytes.size());
  const std::string_view first = bytes.substr(0, end);
  const std::string_view rest = bytes.substr(std::min(end + 1, bytes.size()));
  const std::u16string wide_first(first.begin(), first.end());
  const std::u16string wide_rest(rest.begin(), rest.end());
  Require(StrMatchesA(rest, first) == StrMatchWildW(wide_rest, wide_first));
  const std::size_t at = first.empty() ? std::string_view::npos : rest.find(first);
  Require(StrPosA(first, rest) == (at == std::string_view::npos ? 0 : at + 1));
  Require(StrPosW(wide_first, wide_rest) == StrPosA(first, rest));
  Require(StrReplaceA(rest, first, first) == rest);
  Require((StrCompNumW(wide_first, wide_rest) < 0) == (StrCompNumW(wide_rest, wide_first) > 0));
  Require(QuotedStrW(wide_rest).size() == wide_rest.size() + StrCountCharW(u'"', wide_rest) + 2);
  Require(StrTrimA(rest).size() <= rest.size() && ProperCaseW(wide_rest).size() == wide_rest.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  CheckUtf8(bytes);
  CheckUrl(bytes);
  CheckNumbers(bytes);
  CheckPairs(bytes);
  return 0;
}

#include <ravo/runtime/text.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/url.h>

#include <array>
#include <cstdint>

namespace ravo::DIUtils {
namespace {

using strings::Code;

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kPlain = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz@*-._";

constexpr std::array<bool, 256> PlainBytes() {
  std::array<bool, 256> plain{};
  for (const char c : kPlain) plain[Code(c)] = true;
  return plain;
}

constexpr std::array<std::int8_t, 256> HexValues() {
  std::array<std::int8_t, 256> values{};
  for (unsigned byte = 0; byte < values.size(); ++byte) {
    values[byte] = static_cast<std::int8_t>(HexDigitValue(static_cast<char16_t>(byte)));
  }
  return values;
}

constexpr std::array<bool, 256> kIsPlain = PlainBytes();
constexpr std::array<std::int8_t, 256> kHexValue = HexValues();

char* Encode(std::string_view text, char* out) {
  for (const char c : text) {
    if (kIsPlain[Code(c)]) {
      *out++ = c;
    } else if (c == ' ') {
      *out++ = '+';
    } else {
      *out++ = '%';
      *out++ = kHexDigits[Code(c) >> 4];
      *out++ = kHexDigits[Code(c) & 15];
    }
  }
  return out;
}

// The byte that two digits stand for, negative where they are none.
int EscapedByte(std::string_view rest) {
  if (rest.size() < 3) return -1;
  const int high = kHexValue[Code(rest[1])];
  const int low = kHexValue[Code(rest[2])];
  return high < 0 || low < 0 ? -1 : high * 16 + low;
}

char* Decode(std::string_view rest, char* out) {
  while (!rest.empty()) {
    const char c = rest.front();
    const int escaped = c == '%' ? EscapedByte(rest) : -1;
    *out++ = escaped >= 0 ? static_cast<char>(escaped) : c == '+' ? ' ' : c;
    rest.remove_prefix(escaped >= 0 ? 3 : 1);
  }
  return out;
}

}  // namespace

std::string StrEncodeUrlA(std::string_view text) {
  std::string result(3 * text.size(), '\0');
  result.resize(static_cast<std::size_t>(Encode(text, result.data()) - result.data()));
  return result;
}

std::string StrDecodeUrlA(std::string_view text) {
  std::string result(text.size(), '\0');
  result.resize(static_cast<std::size_t>(Decode(text, result.data()) - result.data()));
  return result;
}

std::string StrTimUriFragmentA(std::string_view uri) { return std::string(uri.substr(0, uri.find('#'))); }
std::u16string StrTrimUriFragmentW(std::u16string_view uri) {
  return std::u16string(uri.substr(0, uri.find(u'#')));
}
std::u16string StrExtractUriFragmentW(std::u16string_view uri) {
  const std::size_t at = uri.find(u'#');
  return at == std::u16string_view::npos ? std::u16string() : std::u16string(uri.substr(at + 1));
}

}  // namespace ravo::DIUtils

#include <ravo/runtime/text.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/url.h>
#include <ravo/utils/strings/vector.h>

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

#ifdef __SSE2__

using strings::Everywhere;
using strings::LoadVector;

__m128i Between(__m128i text, char low, char high) {
  return _mm_and_si128(_mm_cmpgt_epi8(text, Everywhere(static_cast<char>(low - 1))),
                       _mm_cmpgt_epi8(Everywhere(static_cast<char>(high + 1)), text));
}

__m128i AreOne(__m128i text, char c) { return _mm_cmpeq_epi8(text, Everywhere(c)); }

__m128i ArePlain(__m128i text) {
  const __m128i letters = Between(strings::LowerLanes<char>(text), 'a', 'z');
  const __m128i marks = _mm_or_si128(_mm_or_si128(AreOne(text, '@'), AreOne(text, '*')),
                                     _mm_or_si128(Between(text, '-', '.'), AreOne(text, '_')));
  return _mm_or_si128(_mm_or_si128(letters, marks), Between(text, '0', '9'));
}

__m128i WithOneForAnother(__m128i text, __m128i lanes, char c) {
  return _mm_or_si128(_mm_andnot_si128(lanes, text), _mm_and_si128(lanes, Everywhere(c)));
}

// How many bytes from the front are plain or blanks; they are in `out` then, and something else behind them.
std::size_t EncodePlain(std::string_view text, char* out) {
  std::size_t at = 0;
  for (; text.size() - at >= strings::kVectorBytes; at += strings::kVectorBytes) {
    const __m128i bytes = LoadVector(text.data() + at);
    const __m128i blanks = AreOne(bytes, ' ');
    strings::StoreVector(out + at, WithOneForAnother(bytes, blanks, '+'));
    const unsigned good = strings::BitsOf(_mm_or_si128(ArePlain(bytes), blanks));
    if (good != 0xFFFF) return at + strings::LowestBit(~good);
  }
  return at;
}

std::size_t DecodePlain(std::string_view text, char* out) {
  std::size_t at = 0;
  for (; text.size() - at >= strings::kVectorBytes; at += strings::kVectorBytes) {
    const __m128i bytes = LoadVector(text.data() + at);
    strings::StoreVector(out + at, WithOneForAnother(bytes, AreOne(bytes, '+'), ' '));
    const unsigned escapes = strings::BitsOf(AreOne(bytes, '%'));
    if (escapes != 0) return at + strings::LowestBit(escapes);
  }
  return at;
}

#else

std::size_t EncodePlain(std::string_view, char*) { return 0; }
std::size_t DecodePlain(std::string_view, char*) { return 0; }

#endif

char* EncodeByte(char c, char* out) {
  if (kIsPlain[Code(c)] || c == ' ') {
    *out++ = c == ' ' ? '+' : c;
    return out;
  }
  *out++ = '%';
  *out++ = kHexDigits[Code(c) >> 4];
  *out++ = kHexDigits[Code(c) & 15];
  return out;
}

// How many bytes are treated one by one before the next look for a plain run: escapes come in groups, and
// behind a short run the next one is short as well.
std::size_t FewBehind(std::size_t plain) { return plain < 8 ? 16 : 1; }

char* Encode(std::string_view text, char* out) {
  while (!text.empty()) {
    const std::size_t plain = EncodePlain(text, out);
    out += plain;
    text.remove_prefix(plain);
    const std::string_view few = text.substr(0, FewBehind(plain));
    for (const char c : few) out = EncodeByte(c, out);
    text.remove_prefix(few.size());
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
    const std::size_t plain = DecodePlain(rest, out);
    out += plain;
    rest.remove_prefix(plain);
    for (std::size_t few = FewBehind(plain); few > 0 && !rest.empty(); --few) {
      const char c = rest.front();
      const int escaped = c == '%' ? EscapedByte(rest) : -1;
      *out++ = escaped >= 0 ? static_cast<char>(escaped) : c == '+' ? ' ' : c;
      rest.remove_prefix(escaped >= 0 ? 3 : 1);
    }
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

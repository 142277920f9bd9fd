#include <ravo/runtime/text.h>
#include <ravo/utils/strings/in_pieces.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/url.h>
#include <ravo/utils/strings/vector.h>

#include <array>
#include <cstdint>
#include <cstring>

namespace ravo::DIUtils {
namespace {

using strings::Code;

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kPlain = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz@*-._";

// What a byte becomes, and how many bytes that is. Four bytes, which are written at once.
struct Escape {
  char bytes[3];
  std::uint8_t size;
};
static_assert(sizeof(Escape) == 4);

// Untested: runs at compile time only.
constexpr Escape EscapeOf(unsigned byte) {
  const auto c = static_cast<char>(byte);
  if (c == ' ') return {{'+', 0, 0}, 1};
  if (kPlain.find(c) != std::string_view::npos) return {{c, 0, 0}, 1};
  return {{'%', kHexDigits[byte >> 4], kHexDigits[byte & 15]}, 3};
}

// Untested: runs at compile time only.
constexpr std::array<Escape, 256> Escapes() {
  std::array<Escape, 256> escapes{};
  for (unsigned byte = 0; byte < escapes.size(); ++byte) escapes[byte] = EscapeOf(byte);
  return escapes;
}

// Where a byte is no digit; digits leave these bits alone.
constexpr unsigned kNoDigit = 0x100;

// Untested: runs at compile time only.
constexpr std::array<std::uint16_t, 256> DigitValues(unsigned weight) {
  std::array<std::uint16_t, 256> values{};
  for (unsigned byte = 0; byte < values.size(); ++byte) {
    const int digit = HexDigitValue(static_cast<char16_t>(byte));
    values[byte] = static_cast<std::uint16_t>(digit < 0 ? kNoDigit : static_cast<unsigned>(digit) * weight);
  }
  return values;
}

constexpr std::array<Escape, 256> kEscapes = Escapes();
constexpr std::array<std::uint16_t, 256> kHighDigit = DigitValues(16);
constexpr std::array<std::uint16_t, 256> kLowDigit = DigitValues(1);

// Bytes that are looked at together.
constexpr std::size_t kBlock = 16;
// And one by one where escapes are close together.
constexpr std::size_t kMany = 64;

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

// Sixteen bytes that are plain or blanks; false where others are among them.
bool EncodePlain(const char* text, char* out) {
  const __m128i bytes = LoadVector(text);
  const __m128i blanks = AreOne(bytes, ' ');
  strings::StoreVector(out, WithOneForAnother(bytes, blanks, '+'));
  return strings::BitsOf(_mm_or_si128(ArePlain(bytes), blanks)) == 0xFFFF;
}

// How many bytes from the front are no escapes, as far as whole blocks go; they are in `out` then.
std::size_t DecodePlain(std::string_view text, char* out) {
  std::size_t at = 0;
  for (; text.size() - at >= kBlock; at += kBlock) {
    const __m128i bytes = LoadVector(text.data() + at);
    strings::StoreVector(out + at, WithOneForAnother(bytes, AreOne(bytes, '+'), ' '));
    const unsigned escapes = strings::BitsOf(AreOne(bytes, '%'));
    if (escapes != 0) return at + strings::LowestBit(escapes);
  }
  return at;
}

#else

bool EncodePlain(const char*, char*) { return false; }
std::size_t DecodePlain(std::string_view, char*) { return 0; }

#endif

char* EncodeBytes(std::string_view text, char* out) {
  for (const char c : text) {
    const Escape& escape = kEscapes[Code(c)];
    std::memcpy(out, &escape, sizeof escape);
    out += escape.size;
  }
  return out;
}

char* Encode(std::string_view text, char* out) {
  while (text.size() >= kBlock) {
    out = EncodePlain(text.data(), out) ? out + kBlock : EncodeBytes(text.substr(0, kBlock), out);
    text.remove_prefix(kBlock);
  }
  return EncodeBytes(text, out);
}

// What stands at `at`, which moves behind it.
char DecodeOne(const char*& at, const char* end) {
  const char c = *at++;
  if (c != '%') return c == '+' ? ' ' : c;
  const unsigned byte = end - at >= 2 ? kHighDigit[Code(at[0])] | kLowDigit[Code(at[1])] : kNoDigit;
  if (byte >= kNoDigit) return c;
  at += 2;
  return static_cast<char>(byte);
}

char* Decode(std::string_view text, char* out) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    const std::size_t plain = DecodePlain({at, static_cast<std::size_t>(end - at)}, out);
    at += plain;
    out += plain;
    // Escapes come in groups: behind a short run the next one is short as well.
    for (std::size_t few = plain < kBlock / 2 ? kMany : 1; few > 0 && at != end; --few)
      *out++ = DecodeOne(at, end);
  }
  return out;
}

}  // namespace

std::string StrEncodeUrlA(std::string_view text) { return strings::EncodedInPieces(text, Encode); }

std::string StrDecodeUrlA(std::string_view text) {
  std::string result(text.size(), '\0');
  result.resize(static_cast<std::size_t>(Decode(text, result.data()) - result.data()));
  return result;
}

// Kept: the name `StrTimUriFragmentA` lacks an r; modules import it so. Test: StrTimUriFragmentA.KeepsItsName
std::string StrTimUriFragmentA(std::string_view uri) { return std::string(uri.substr(0, uri.find('#'))); }
std::u16string StrTrimUriFragmentW(std::u16string_view uri) {
  return std::u16string(uri.substr(0, uri.find(u'#')));
}
std::u16string StrExtractUriFragmentW(std::u16string_view uri) {
  const std::size_t at = uri.find(u'#');
  return at == std::u16string_view::npos ? std::u16string() : std::u16string(uri.substr(at + 1));
}

}  // namespace ravo::DIUtils

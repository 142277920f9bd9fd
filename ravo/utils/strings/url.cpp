#include <ravo/codec/kernels/block.h>
#include <ravo/runtime/overwrite.h>
#include <ravo/runtime/text.h>
#include <ravo/utils/strings/in_pieces.h>
#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/url.h>

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace ravo::DIUtils {
namespace {

using strings::Code;

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kPlain = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz@*-._";

// The encoded form of a byte and its length. Four bytes, stored at once.
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

// Marks a byte that is not a digit; values of digits do not have this bit.
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

constexpr std::size_t kBlock = codec::kBlockBytes;
// The number of bytes whose escapes are found at once.
constexpr std::size_t kMany = 64;

using Bytes = codec::Block<char>;

Bytes ArePlain(Bytes text) {
  const Bytes letters = codec::AsciiLowered(text).Within('a', 'z');
  const Bytes marks = text.EqualTo('@') | text.EqualTo('*') | text.Within('-', '.') | text.EqualTo('_');
  return letters | marks | text.Within('0', '9');
}

// Encodes sixteen bytes that are plain or blanks. False if there are others.
bool EncodePlain(const char* text, char* out) {
  const Bytes bytes = Bytes::Load(text);
  const Bytes blanks = bytes.EqualTo(' ');
  Choose(blanks, Bytes('+'), bytes).Store(out);
  return (ArePlain(bytes) | blanks).AsHits().All();
}

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

// Decodes the byte or escape at `at` and advances past it.
char DecodeOne(const char*& at, const char* end) {
  const char c = *at++;
  if (c != '%') return c == '+' ? ' ' : c;
  const unsigned byte = end - at >= 2 ? kHighDigit[Code(at[0])] | kLowDigit[Code(at[1])] : kNoDigit;
  if (byte >= kNoDigit) return c;
  at += 2;
  return static_cast<char>(byte);
}

// The places of '%' in the next `kMany` bytes, a bit for each.
std::uint64_t EscapesIn(const char* text) {
  std::uint64_t places = 0;
  for (std::size_t at = 0; at < kMany; at += kBlock)
    places |= std::uint64_t{Bytes::Load(text + at).EqualTo('%').AsHits().Bits()} << at;
  return places;
}

// Decodes bytes without escapes, block by block: up to a block more is read and written.
char* DecodePlain(const char* from, const char* to, char* out) {
  for (;; from += kBlock, out += kBlock) {
    const Bytes bytes = Bytes::Load(from);
    Choose(bytes.EqualTo('+'), Bytes(' '), bytes).Store(out);
    if (to - from <= static_cast<std::ptrdiff_t>(kBlock)) return out + (to - from);
  }
}

char* Decode(std::string_view text, char* out) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (end - at >= static_cast<std::ptrdiff_t>(kMany + kBlock)) {
    const char* const many = at;
    for (std::uint64_t places = EscapesIn(many); places != 0; places &= places - 1) {
      const char* const escape = many + std::countr_zero(places);
      if (at != escape) out = DecodePlain(at, escape, out);
      at = escape;
      *out++ = DecodeOne(at, end);
    }
    // The last escape may end behind.
    if (at >= many + kMany) continue;
    out = DecodePlain(at, many + kMany, out);
    at = many + kMany;
  }
  while (at != end) *out++ = DecodeOne(at, end);
  return out;
}

}  // namespace

std::string StrEncodeUrlA(std::string_view text) { return strings::EncodedInPieces(text, Encode); }

std::string StrDecodeUrlA(std::string_view text) {
  return Written<char>(
      text.size(), [text](char* to, std::size_t) { return static_cast<std::size_t>(Decode(text, to) - to); });
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

#include <ravo/utils/strings/utf8_kernels.h>

namespace ravo::strings {
namespace {

constexpr char16_t kReplacement = 0xFFFD;

constexpr unsigned Byte(char c) { return static_cast<unsigned char>(c); }

constexpr bool IsTrail(char c) { return (Byte(c) & 0xC0) == 0x80; }

// How many trail bytes a lead byte asks for.
constexpr unsigned TrailsOf(unsigned lead) {
  if (lead < 0xE0) return 1;
  if (lead < 0xF0) return 2;
  if (lead < 0xF8) return 3;
  return lead < 0xFC ? 4 : 5;
}

// Takes as many trail bytes as there are, up to `count`; says whether there were enough.
bool TakeTrails(std::string_view& rest, unsigned count, unsigned& value) {
  for (; count > 0; --count) {
    if (rest.empty() || !IsTrail(rest.front())) return false;
    value = value << 6 | (Byte(rest.front()) & 0x3F);
    rest.remove_prefix(1);
  }
  return true;
}

char* PutUtf8Unit(unsigned unit, char* out) noexcept {
  if (unit < 0x80) {
    *out++ = static_cast<char>(unit);
    return out;
  }
  if (unit < 0x800) {
    *out++ = static_cast<char>(0xC0 | unit >> 6);
  } else {
    *out++ = static_cast<char>(0xE0 | unit >> 12);
    *out++ = static_cast<char>(0x80 | (unit >> 6 & 0x3F));
  }
  *out++ = static_cast<char>(0x80 | (unit & 0x3F));
  return out;
}

}  // namespace

char16_t TakeUtf8Unit(std::string_view& rest) noexcept {
  const unsigned lead = Byte(rest.front());
  rest.remove_prefix(1);
  if (lead < 0x80) return static_cast<char16_t>(lead);
  if (lead < 0xC0) return kReplacement;
  const unsigned trails = TrailsOf(lead);
  unsigned value = lead & (0x3FU >> trails);
  // Kept: a sequence of four bytes or more gives one U+FFFD, because the library has no code point past
  // U+FFFF. Test: StrDecodeUtf8.FourBytesAndMoreGiveOneReplacement
  if (!TakeTrails(rest, trails, value) || trails > 2) return kReplacement;
  // Kept: a surrogate in UTF-8 is decoded as it is. Test: StrDecodeUtf8.SurrogatesAreTakenAsTheyAre
  const bool is_over_long = value < (trails == 1 ? 0x80U : 0x800U);
  return is_over_long ? kReplacement : static_cast<char16_t>(value);
}

// The most frequent forms without detours: ASCII and two bytes that are well formed.
char16_t* DecodeFewUtf8(std::string_view& bytes, char16_t* out) noexcept {
  for (std::size_t count = 0; count < kFew && !bytes.empty(); ++count) {
    const unsigned lead = Byte(bytes.front());
    if (lead < 0x80) {
      *out++ = static_cast<char16_t>(lead);
      bytes.remove_prefix(1);
    } else if (lead >= 0xC2 && lead < 0xE0 && bytes.size() > 1 && IsTrail(bytes[1])) {
      *out++ = static_cast<char16_t>((lead & 0x1F) << 6 | (Byte(bytes[1]) & 0x3F));
      bytes.remove_prefix(2);
    } else {
      *out++ = TakeUtf8Unit(bytes);
    }
  }
  return out;
}

char16_t* DecodeUtf8Plainly(std::string_view bytes, char16_t* out) noexcept {
  while (!bytes.empty()) *out++ = TakeUtf8Unit(bytes);
  return out;
}

char* EncodeUtf8Plainly(std::u16string_view text, char* out) noexcept {
  for (const char16_t unit : text) out = PutUtf8Unit(unit, out);
  return out;
}

}  // namespace ravo::strings

#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/kernels/run_search.h>
#include <ravo/runtime/overwrite.h>
#include <ravo/runtime/text.h>

// `ToUtf8` and `FromUtf8`, declared in ravo/runtime, defined here because they need the kernels. The kernels
// know single UTF-16 units only, so surrogates and lead bytes of anything else are handled here.
namespace ravo {
namespace {

using codec::ByteRoom;
using codec::ByteSpan;
using codec::Run;
using codec::TextRoom;

// The number of characters to convert one by one before trying the kernels again.
constexpr std::size_t kFew = 16;

constexpr char32_t kReplacementCharacter = 0xFFFD;

constexpr bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Removes the first character of `rest` and returns it; U+FFFD for an unpaired surrogate.
char32_t TakeUtf16(std::u16string_view& rest) {
  const char16_t unit = rest.front();
  rest.remove_prefix(1);
  if (!IsHighSurrogate(unit)) return IsLowSurrogate(unit) ? kReplacementCharacter : char32_t{unit};
  if (rest.empty() || !IsLowSurrogate(rest.front())) return kReplacementCharacter;
  const char16_t low = rest.front();
  rest.remove_prefix(1);
  return 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (char32_t{low} - 0xDC00);
}

std::uint8_t Trail(char32_t ch, int shift) {
  return static_cast<std::uint8_t>(0x80 | ((ch >> shift) & 0x3F));
}

std::uint8_t* PutUtf8(char32_t ch, std::uint8_t* to) {
  if (ch < 0x80) {
    *to++ = static_cast<std::uint8_t>(ch);
    return to;
  }
  if (ch < 0x800) {
    *to++ = static_cast<std::uint8_t>(0xC0 | (ch >> 6));
  } else {
    *to++ = ch < 0x10000 ? static_cast<std::uint8_t>(0xE0 | (ch >> 12))
                         : static_cast<std::uint8_t>(0xF0 | (ch >> 18));
    if (ch >= 0x10000) *to++ = Trail(ch, 12);
    *to++ = Trail(ch, 6);
  }
  *to++ = Trail(ch, 0);
  return to;
}

char16_t* PutUtf16(char32_t ch, char16_t* to) {
  if (ch < 0x10000) {
    *to++ = static_cast<char16_t>(ch);
    return to;
  }
  *to++ = static_cast<char16_t>(0xD800 + ((ch - 0x10000) >> 10));
  *to++ = static_cast<char16_t>(0xDC00 + ((ch - 0x10000) & 0x3FF));
  return to;
}

// The sequence after a lead byte: the number of trailing bytes, and the range of the first of them, which
// excludes overlong sequences, surrogates and values past U+10FFFF (Unicode Standard, table 3-7).
struct Utf8Lead {
  int trails;
  unsigned char first_low;
  unsigned char first_high;
};

Utf8Lead LeadOf(unsigned char byte) {
  if (byte < 0xC2 || byte > 0xF4) return {-1, 0, 0};
  if (byte < 0xE0) return {1, 0x80, 0xBF};
  if (byte < 0xF0) {
    return {2, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
            static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
  }
  return {3, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
          static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
}

char32_t TakeUtf8(std::string_view& rest) {
  const auto lead_byte = static_cast<unsigned char>(rest.front());
  rest.remove_prefix(1);
  if (lead_byte < 0x80) return lead_byte;
  const Utf8Lead lead = LeadOf(lead_byte);
  if (lead.trails < 0) return kReplacementCharacter;
  char32_t ch = lead_byte & (0x3F >> lead.trails);
  for (int i = 0; i < lead.trails; ++i) {
    const unsigned char low = i == 0 ? lead.first_low : 0x80;
    const unsigned char high = i == 0 ? lead.first_high : 0xBF;
    if (rest.empty()) return kReplacementCharacter;
    const auto byte = static_cast<unsigned char>(rest.front());
    if (byte < low || byte > high) return kReplacementCharacter;
    ch = (ch << 6) | (byte & 0x3F);
    rest.remove_prefix(1);
  }
  return ch;
}

// Matches units or bytes from `first` to `last`.
template <unsigned first, unsigned last>
struct Between {
  template <class Unit>
  [[nodiscard]] bool operator()(Unit unit) const {
    return unit >= first && unit <= last;
  }
  template <class Unit>
  [[nodiscard]] unsigned HitsIn(const codec::UnitBlock<Unit>& block) const noexcept {
    return block.From(first, last);
  }
};
using Surrogates = Between<0xD800, 0xDFFF>;
// Lead bytes of surrogates and of sequences of four bytes, with some others.
using SpecialLeads = Between<0xED, 0xFF>;

ByteSpan BytesOf(std::string_view bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

// Encodes `rest` until at most `left` units remain, then any surrogates at its front.
std::uint8_t* Encode(std::u16string_view& rest, std::size_t left, std::uint8_t* to, std::uint8_t* end) {
  while (rest.size() > left) {
    const Run run = codec::ChosenKernels().encode_utf8(rest.substr(0, rest.size() - left), {to, end});
    rest.remove_prefix(run.taken);
    to += run.made;
    for (std::size_t few = kFew; few > 0 && rest.size() > left; --few) to = PutUtf8(TakeUtf16(rest), to);
  }
  while (!rest.empty() && Surrogates()(rest.front())) to = PutUtf8(TakeUtf16(rest), to);
  return to;
}

// Decodes `rest` until at most `left` bytes remain, then any characters with special lead bytes at its front.
char16_t* Decode(std::string_view& rest, std::size_t left, char16_t* to, char16_t* end) {
  while (rest.size() > left) {
    const Run run =
        codec::ChosenKernels().decode_utf8(BytesOf(rest.substr(0, rest.size() - left)), {to, end});
    rest.remove_prefix(run.taken);
    to += run.made;
    for (std::size_t few = kFew; few > 0 && rest.size() > left; --few) to = PutUtf16(TakeUtf8(rest), to);
  }
  while (!rest.empty() && SpecialLeads()(BytesOf(rest).front())) to = PutUtf16(TakeUtf8(rest), to);
  return to;
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  // An upper bound: each half of a pair counts as three bytes.
  const std::size_t most = codec::ChosenKernels().utf8_length(text);
  return Written<char>(most, [text](char* out, std::size_t room) {
    auto* const begin = reinterpret_cast<std::uint8_t*>(out);
    std::uint8_t* to = begin;
    for (std::u16string_view rest = text; !rest.empty();) {
      const std::size_t plain = codec::LengthBefore(std::span<const char16_t>(rest), Surrogates());
      to = Encode(rest, rest.size() - plain, to, begin + room);
    }
    return static_cast<std::size_t>(to - begin);
  });
}

std::u16string FromUtf8(std::string_view bytes) {
  return Written<char16_t>(bytes.size(), [bytes](char16_t* begin, std::size_t room) {
    char16_t* to = begin;
    for (std::string_view rest = bytes; !rest.empty();) {
      const std::size_t plain = codec::LengthBefore(BytesOf(rest), SpecialLeads());
      to = Decode(rest, rest.size() - plain, to, begin + room);
    }
    return static_cast<std::size_t>(to - begin);
  });
}

}  // namespace ravo

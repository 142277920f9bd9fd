#include <ravo/codec/kernels/kernel_set.h>
#include <ravo/codec/kernels/vector_block.h>

#include <array>

namespace ravo::codec {
namespace {

// In a text of words with accents hardly so many characters in a row are ASCII: whether they are is foreseen
// by the processor for either kind of text.
constexpr std::size_t kAsciiBlocks = 4;
constexpr std::size_t kBig = kAsciiBlocks * kBlock;

using Indices = std::array<std::uint16_t, kBlock>;

// Writes a block of bytes; false where one of them is 0.
bool WriteBytes(const std::array<std::uint8_t, kBlock>& bytes, std::uint8_t* to) {
  unsigned missing = 0;
  for (const std::uint8_t byte : bytes) missing |= byte - 1U;
  std::memcpy(to, bytes.data(), kBlock);
  return missing < 0x100;
}

// Any characters.
bool EncodeAny(const ReverseTable& table, const char16_t* from, std::uint8_t* to) {
  std::array<std::uint8_t, kBlock> bytes{};
  for (std::size_t i = 0; i < kBlock; ++i) bytes[i] = table[from[i]];
  return WriteBytes(bytes, to);
}

#if defined(__SSE2__)

// Places of eight characters in the second and third page; false where one is elsewhere.
bool PlacesOf(std::uint8_t script, const char16_t* from, std::uint16_t* places) {
  const Vector text = LoadVector(from);
  const Vector upper = _mm_srli_epi16(text, 8);
  const Vector low = _mm_cmpeq_epi16(upper, _mm_setzero_si128());
  const Vector known = _mm_or_si128(low, _mm_cmpeq_epi16(upper, _mm_set1_epi16(script)));
  const Vector in_page = _mm_and_si128(text, _mm_set1_epi16(0xFF));
  StoreVector(places, _mm_or_si128(in_page, _mm_andnot_si128(low, _mm_set1_epi16(0x100))));
  return Mask(known) == 0xFFFF;
}

// Eight bytes as one number, the first in its lowest bits.
std::uint64_t EightBytes(const std::uint8_t* pages, const std::uint16_t* places) {
  std::uint64_t bytes = 0;
  for (std::size_t i = 8; i-- > 0;) bytes = bytes << 8 | pages[places[i]];
  return bytes;
}

// Most characters stand in two pages: one look-up each.
bool EncodeBlock(const ReverseTable& table, const char16_t* from, std::uint8_t* to) {
  alignas(Vector) Indices places;
  const bool first = PlacesOf(table.script, from, places.data());
  const bool second = PlacesOf(table.script, from + 8, places.data() + 8);
  if (!first || !second) return EncodeAny(table, from, to);
  const std::uint8_t* const pages = table.pages + 256;
  const std::uint64_t low = EightBytes(pages, places.data());
  const std::uint64_t high = EightBytes(pages, places.data() + 8);
  const Vector bytes = _mm_set_epi64x(static_cast<long long>(high), static_cast<long long>(low));
  StoreVector(to, bytes);
  return Mask(_mm_cmpeq_epi8(bytes, _mm_setzero_si128())) == 0;
}

#else

bool EncodeBlock(const ReverseTable& table, const char16_t* from, std::uint8_t* to) {
  return EncodeAny(table, from, to);
}

#endif

// So few that the compiler writes the look-ups out.
void DecodeBlock(const ByteTable& table, const std::uint8_t* from, char16_t* to) {
  for (std::size_t i = 0; i < kBlock; ++i) to[i] = table[from[i]];
}

// How many characters of a big block were encoded.
std::size_t EncodeBig(const ReverseTable& table, const char16_t* from, std::uint8_t* to) {
  std::size_t at = 0;
  while (at < kBig && EncodeBlock(table, from + at, to + at)) at += kBlock;
  return at;
}

}  // namespace

Run DecodeSingleByteBlocks(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept {
  const std::size_t end = WholeBlocks(bytes.size(), text.size());
  for (std::size_t at = 0; at < end; at += kBlock) DecodeBlock(table, bytes.data() + at, text.data() + at);
  return {end, end};
}

Run DecodeSingleByteAscii(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept {
  const std::size_t end = WholeBlocks(bytes.size(), text.size(), kBig);
  for (std::size_t at = 0; at < end; at += kBig) {
    if (WidenAscii<kAsciiBlocks>(bytes.data() + at, text.data() + at)) continue;
    for (std::size_t block = at; block < at + kBig; block += kBlock) {
      DecodeBlock(table, bytes.data() + block, text.data() + block);
    }
  }
  const Run rest = DecodeSingleByteBlocks(table, bytes.subspan(end), text.subspan(end));
  return {end + rest.taken, end + rest.made};
}

Run EncodeSingleByteBlocks(const ReverseTable& table, bool ascii, TextSpan text, ByteRoom bytes) noexcept {
  const std::size_t end = WholeBlocks(text.size(), bytes.size(), kBig);
  for (std::size_t at = 0; at < end; at += kBig) {
    if (ascii && NarrowAscii<kAsciiBlocks>(text.data() + at, bytes.data() + at)) continue;
    const std::size_t count = EncodeBig(table, text.data() + at, bytes.data() + at);
    if (count < kBig) return {at + count, at + count};
  }
  return {end, end};
}

}  // namespace ravo::codec

#include <ravo/codec/kernels/ascii_blocks.h>
#include <ravo/codec/kernels/kernels.h>

#include <array>

namespace ravo::codec {
namespace {

constexpr std::size_t kBlock = 16;
// Runs of this many ASCII characters are rare in Czech text, so the branch on them is predictable in either
// kind of text.
constexpr std::size_t kAsciiBlocks = 4;
constexpr std::size_t kBig = kAsciiBlocks * kBlock;

using Indices = std::array<std::uint16_t, kBlock>;

// Stores a block of bytes. False if one of them is 0.
bool WriteBytes(const std::array<std::uint8_t, kBlock>& bytes, std::uint8_t* to) {
  unsigned missing = 0;
  for (const std::uint8_t byte : bytes) missing |= byte - 1U;
  std::memcpy(to, bytes.data(), kBlock);
  return missing < 0x100;
}

// Encodes a block of any characters.
bool EncodeAny(const ReverseTable& table, const char16_t* from, std::uint8_t* to) {
  std::array<std::uint8_t, kBlock> bytes{};
  for (std::size_t i = 0; i < kBlock; ++i) bytes[i] = table[from[i]];
  return WriteBytes(bytes, to);
}

// Looks up the indices of eight characters in the second and third page. False if one is in another page.
bool PlacesOf(std::uint8_t script, const char16_t* from, std::uint16_t* places) {
  using Units = Block<char16_t>;
  const Units text = Units::Load(from);
  const Units page = text.Right(8);
  const Units is_low = page.EqualTo(u'\0');
  ((text & Units(char16_t{0xFF})) | Units(char16_t{0x100}).Without(is_low)).Store(places);
  return (is_low | page.EqualTo(char16_t{script})).AsHits().All();
}

// Returns eight bytes as one integer, the first in its lowest bits.
std::uint64_t EightBytes(const std::uint8_t* pages, const std::uint16_t* places) {
  std::uint64_t bytes = 0;
  for (std::size_t i = 8; i-- > 0;) bytes = bytes << 8 | pages[places[i]];
  return bytes;
}

// Most characters are in two pages, so one lookup each suffices.
bool EncodeBlock(const ReverseTable& table, const char16_t* from, std::uint8_t* to) {
  alignas(kBlockBytes) Indices places;
  const bool first = PlacesOf(table.script, from, places.data());
  const bool second = PlacesOf(table.script, from + 8, places.data() + 8);
  if (!first || !second) return EncodeAny(table, from, to);
  const std::uint8_t* const pages = table.pages + 256;
  const auto bytes =
      Block<std::uint8_t>::OfHalves(EightBytes(pages, places.data()), EightBytes(pages, places.data() + 8));
  bytes.Store(to);
  return bytes.EqualTo(0).AsHits().None();
}

// Short enough that the compiler unrolls the lookups.
void DecodeBlock(const ByteTable& table, const std::uint8_t* from, char16_t* to) {
  for (std::size_t i = 0; i < kBlock; ++i) to[i] = table[from[i]];
}

// Encodes a big block and returns the number of encoded characters.
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

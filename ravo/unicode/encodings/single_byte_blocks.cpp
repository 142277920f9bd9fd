#include <ravo/unicode/encodings/run_blocks.h>
#include <ravo/unicode/encodings/vector_block.h>

namespace ravo::DIUnicode {
namespace {

// Eight bytes as one number, the first in its lowest bits.
std::uint64_t EightBytes(const ReverseTable& table, const char16_t* text) {
  std::uint64_t bytes = 0;
  for (std::size_t i = 0; i < 8; ++i) bytes |= std::uint64_t{table[text[i]]} << (8 * i);
  return bytes;
}

constexpr bool HasZeroByte(std::uint64_t bytes) {
  return ((bytes - 0x0101010101010101U) & ~bytes & 0x8080808080808080U) != 0;
}

void WriteEight(std::uint64_t bytes, std::uint8_t* to) {
  for (std::size_t i = 0; i < 8; ++i) to[i] = static_cast<std::uint8_t>(bytes >> (8 * i));
}

bool EncodeBlock(const ReverseTable& table, const char16_t* from, std::uint8_t* to) {
  const std::uint64_t first = EightBytes(table, from);
  const std::uint64_t second = EightBytes(table, from + 8);
  if (HasZeroByte(first) || HasZeroByte(second)) return false;
  WriteEight(first, to);
  WriteEight(second, to + 8);
  return true;
}

}  // namespace

Run DecodeSingleByteBlocks(const ByteTable& table, bool ascii, ByteSpan bytes, TextRoom text) noexcept {
  const std::size_t end = WholeBlocks(bytes.size(), text.size());
  for (std::size_t at = 0; at < end; at += kBlock) {
    if (ascii && WidenAsciiBlock(bytes.data() + at, text.data() + at)) continue;
    for (std::size_t i = at; i < at + kBlock; ++i) text[i] = table[bytes[i]];
  }
  return {end, end};
}

Run EncodeSingleByteBlocks(const ReverseTable& table, bool ascii, TextSpan text, ByteRoom bytes) noexcept {
  const std::size_t end = WholeBlocks(text.size(), bytes.size());
  std::size_t at = 0;
  for (; at < end; at += kBlock) {
    if (ascii && NarrowAsciiBlock(text.data() + at, bytes.data() + at)) continue;
    if (!EncodeBlock(table, text.data() + at, bytes.data() + at)) break;
  }
  return {at, at};
}

}  // namespace ravo::DIUnicode

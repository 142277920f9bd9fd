#include <ravo/codec/kernels/ascii_blocks.h>
#include <ravo/codec/kernels/kernels.h>

namespace ravo::codec {

Run DecodeUtf8Ascii(ByteSpan bytes, TextRoom text) noexcept {
  const std::size_t end = WholeBlocks(bytes.size(), text.size());
  std::size_t at = 0;
  while (at < end && WidenAscii<1>(bytes.data() + at, text.data() + at)) at += kBlockBytes;
  return {at, at};
}

Run EncodeUtf8Ascii(TextSpan text, ByteRoom bytes) noexcept {
  const std::size_t end = WholeBlocks(text.size(), bytes.size());
  std::size_t at = 0;
  while (at < end && NarrowAscii<1>(text.data() + at, bytes.data() + at)) at += kBlockBytes;
  return {at, at};
}

namespace {

// How many of sixteen units have any of `bits`.
std::size_t CountWith(Block<char16_t> low, Block<char16_t> high, char16_t bits) {
  const Block<char16_t> any(bits);
  const Block<char16_t> none;
  const auto without = NarrowedLanes((low & any).EqualTo(none), (high & any).EqualTo(none)).AsHits();
  return 16 - static_cast<std::size_t>(std::popcount(without.Bits()));
}

}  // namespace

std::size_t Utf8Length(TextSpan text) noexcept {
  using Units = Block<char16_t>;
  std::size_t length = text.size();
  std::size_t at = 0;
  for (; text.size() - at >= 2 * Units::kUnits; at += 2 * Units::kUnits) {
    const Units low = Units::Load(text.data() + at);
    const Units high = Units::Load(text.data() + at + Units::kUnits);
    if (AreAscii(low | high)) continue;
    length += CountWith(low, high, 0xFF80) + CountWith(low, high, 0xF800);
  }
  for (; at < text.size(); ++at) length += (text[at] >= 0x80 ? 1U : 0U) + (text[at] >= 0x800 ? 1U : 0U);
  return length;
}

}  // namespace ravo::codec

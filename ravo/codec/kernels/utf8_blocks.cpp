#include <ravo/codec/kernels/ascii_blocks.h>
#include <ravo/codec/kernels/kernels.h>

#include <algorithm>
#include <array>
#include <numeric>

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

using Units = Block<char16_t>;

Units HaveNone(Units units, char16_t bits) { return (units & Units(bits)).EqualTo(u'\0'); }

std::size_t SumOf(Units counts) {
  std::array<char16_t, Units::kUnits> lanes;
  counts.Store(lanes.data());
  return std::accumulate(lanes.begin(), lanes.end(), std::size_t{0});
}

// Returns how many bytes fewer than three per unit whole blocks need.
std::size_t CountSaved(const char16_t* from, std::size_t blocks) {
  Units counts;
  for (; blocks > 0; --blocks, from += Units::kUnits) {
    const Units units = Units::Load(from);
    // Lanes of ones are -1.
    counts = counts - HaveNone(units, 0xFF80) - HaveNone(units, 0xF800);
  }
  return SumOf(counts);
}

}  // namespace

std::size_t Utf8Length(TextSpan text) noexcept {
  constexpr std::size_t kMostBlocks = 0x7FFF;  // two for each lane of a block
  std::size_t length = 3 * text.size();
  while (text.size() >= Units::kUnits) {
    const std::size_t blocks = std::min(text.size() / Units::kUnits, kMostBlocks);
    length -= CountSaved(text.data(), blocks);
    text = text.subspan(blocks * Units::kUnits);
  }
  for (const char16_t unit : text) length -= (unit < 0x80 ? 1U : 0U) + (unit < 0x800 ? 1U : 0U);
  return length;
}

}  // namespace ravo::codec

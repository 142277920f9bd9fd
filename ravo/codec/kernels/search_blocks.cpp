#include <ravo/codec/kernels/block.h>
#include <ravo/codec/kernels/kernels.h>

#include <algorithm>

namespace ravo::codec {
namespace {

using Units = Block<char16_t>;

constexpr std::size_t kBigUnits = 8 * Units::kUnits;

// The letters of Europe lack the highest bit of special units.
bool LackHighestBit(const char16_t* units, std::size_t count) {
  Units all;
  for (std::size_t at = 0; at < count; at += Units::kUnits) all = all | Units::Load(units + at);
  return all.SignedLess(Units()).AsHits().None();
}

std::size_t FindSpecialSingly(TextSpan text) {
  return static_cast<std::size_t>(std::ranges::find_if(text, IsSpecial) - text.begin());
}

// Of whole blocks.
std::size_t FindInBlocks(TextSpan text) {
  for (std::size_t at = 0; at < text.size(); at += Units::kUnits) {
    const Units units = Units::Load(text.data() + at);
    const auto special = (units.Within(0xD800, 0xDFFF) | units.EqualTo(kReplacement)).AsHits();
    if (!special.None()) return at + special.First();
  }
  return text.size();
}

}  // namespace

std::size_t FindSpecialBlocks(TextSpan text) noexcept {
  std::size_t at = 0;
  for (; text.size() - at >= kBigUnits; at += kBigUnits) {
    if (LackHighestBit(text.data() + at, kBigUnits)) continue;
    const std::size_t found = FindInBlocks(text.subspan(at, kBigUnits));
    if (found != kBigUnits) return at + found;
  }
  const std::size_t blocks = (text.size() - at) / Units::kUnits * Units::kUnits;
  const std::size_t found = FindInBlocks(text.subspan(at, blocks));
  at += found;
  return found != blocks ? at : at + FindSpecialSingly(text.subspan(at));
}

}  // namespace ravo::codec

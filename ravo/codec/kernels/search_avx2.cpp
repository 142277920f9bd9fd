#include <ravo/codec/kernels/kernels.h>

#if defined(__SSE2__)
#include <ravo/codec/kernels/block_avx2.h>

namespace ravo::codec {
namespace {

template <class Char>
RAVO_AVX2 inline WideBlock<Char> Candidates(const Char* text, const Char* last_text, WideBlock<Char> first,
                                            WideBlock<Char> last) {
  return WideBlock<Char>::Load(text).EqualTo(first) & WideBlock<Char>::Load(last_text).EqualTo(last);
}

// Tests two blocks of positions at a time.
template <class Char>
RAVO_AVX2 inline std::size_t SkipBlocks(const Char* text, const Char* last_text, std::size_t places,
                                        const Char (&ends)[2]) {
  constexpr std::size_t kUnits = WideBlock<Char>::kUnits;
  const WideBlock<Char> first(ends[0]);
  const WideBlock<Char> last(ends[1]);
  std::size_t at = 0;
  for (; places - at >= 2 * kUnits; at += 2 * kUnits) {
    const WideBlock<Char> low = Candidates(text + at, last_text + at, first, last);
    const WideBlock<Char> high = Candidates(text + at + kUnits, last_text + at + kUnits, first, last);
    if ((low | high).Bits() != 0) break;
  }
  return at;
}

// The letters of Europe lack the highest bit of special units.
RAVO_AVX2 inline bool LackHighestBit(const char16_t* units, std::size_t count) {
  using Units = WideBlock<char16_t>;
  Units all;
  for (std::size_t at = 0; at < count; at += Units::kUnits) all = all | Units::Load(units + at);
  return all.HasNoneOf(Units(char16_t{0x8000}));
}

}  // namespace

RAVO_AVX2 std::size_t FindSpecialAvx2(TextSpan text) noexcept {
  constexpr std::size_t kBig = 8 * WideBlock<char16_t>::kUnits;
  std::size_t at = 0;
  for (; text.size() - at >= kBig; at += kBig) {
    if (LackHighestBit(text.data() + at, kBig)) continue;
    const std::size_t found = FindSpecialBlocks(text.subspan(at, kBig));
    if (found != kBig) return at + found;
  }
  return at + FindSpecialBlocks(text.subspan(at));
}

RAVO_AVX2 std::size_t SkipBytesAvx2(const char* text, const char* last_text, std::size_t places,
                                    const char (&ends)[2]) noexcept {
  return SkipBlocks(text, last_text, places, ends);
}
RAVO_AVX2 std::size_t SkipUnitsAvx2(const char16_t* text, const char16_t* last_text, std::size_t places,
                                    const char16_t (&ends)[2]) noexcept {
  return SkipBlocks(text, last_text, places, ends);
}

}  // namespace ravo::codec

#endif

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

}  // namespace

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

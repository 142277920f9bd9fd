#include <ravo/codec/kernels/kernels.h>

// Single-byte encodings by table lookup in registers.
#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/decode_avx512.inc>

namespace ravo::codec {
namespace {

// Holds the upper half of the table in four vectors.
class SingleByteEngine {
 public:
  struct Maker {
    const ByteTable& table;
    RAVO_AVX512 SingleByteEngine operator()() const { return SingleByteEngine(table); }
  };

  RAVO_AVX512 explicit SingleByteEngine(const ByteTable& table) {
    for (std::size_t i = 0; i < 4; ++i) parts_[i] = _mm512_loadu_si512(table.data() + 0x80 + i * kHalf);
  }

  RAVO_AVX512 bool Decode(const ByteBlock& block, TextRoom to, Run& run) const {
    const Bits last_quarter = From(Load(block.from), 0xC0);
    StoreUnits(to, block.length, Characters<0>(block, last_quarter));
    if (block.length > kHalf)
      StoreUnits(to.subspan(kHalf), block.length - kHalf, Characters<1>(block, last_quarter));
    run = {block.length, block.length};
    return true;
  }

  // Decodes up to two blocks, in few steps: a branch for each half of a block would be hard to predict.
  RAVO_AVX512 Run DecodeNear(ByteSpan bytes, std::size_t length, TextRoom text) const {
    PutHalf(bytes.data(), text.data());
    if (length > kHalf) {
      PutHalf(bytes.data() + kHalf, text.data() + kHalf);
      PutHalf(bytes.data() + kWide, text.data() + kWide);
    }
    if (length > kWide + kHalf) PutHalf(bytes.data() + kWide + kHalf, text.data() + kWide + kHalf);
    return {length, length};
  }

  RAVO_AVX512 static Bits StartsIn(Vector) { return ~Bits{0}; }
  RAVO_AVX512 static bool IsBetweenCharacters() { return true; }
  RAVO_AVX512 static Run WithoutUnfinished(const Run& run, ByteSpan) { return run; }

 private:
  template <std::size_t half>
  RAVO_AVX512 Vector Characters(const ByteBlock& block, Bits last_quarter) const {
    return Units(Widened(block.from + half * kHalf), HalfOf<half>(block.beyond), HalfOf<half>(last_quarter));
  }

  RAVO_AVX512 void PutHalf(const std::uint8_t* from, char16_t* to) const {
    const Vector places = Widened(from);
    const __mmask32 upper = _mm512_cmpge_epu16_mask(places, _mm512_set1_epi16(0x80));
    const __mmask32 last_quarter = _mm512_cmpge_epu16_mask(places, _mm512_set1_epi16(0xC0));
    _mm512_storeu_si512(to, Units(places, upper, last_quarter));
  }

  RAVO_AVX512 Vector Units(Vector places, __mmask32 upper, __mmask32 last_quarter) const {
    const Vector third = _mm512_permutex2var_epi16(parts_[0], places, parts_[1]);
    const Vector fourth = _mm512_permutex2var_epi16(parts_[2], places, parts_[3]);
    return _mm512_mask_mov_epi16(_mm512_mask_mov_epi16(places, upper, third), last_quarter, fourth);
  }

  Vector parts_[4];
};

}  // namespace

RAVO_AVX512 Run DecodeSingleByteAvx512(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept {
  return DecodeBlocks<false>(SingleByteEngine(table), bytes, std::min(bytes.size(), text.size()), text);
}

RAVO_AVX512 RunUntil DecodeSingleByteUntilAvx512(ByteSpan bytes, TextRoom text, EndBytes ends,
                                                 const ByteTable& table) noexcept {
  return DecodeUntilEnd(SingleByteEngine::Maker{table}, bytes, text, ends);
}

}  // namespace ravo::codec

#endif

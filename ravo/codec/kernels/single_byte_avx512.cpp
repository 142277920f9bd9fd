#include <ravo/codec/kernels/kernels.h>

// Single-byte encodings by table lookup in registers.
#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/decode_avx512.inc>

namespace ravo::codec {
namespace {

class SingleByteEngine {
 public:
  RAVO_AVX512 explicit SingleByteEngine(const ByteTable& table) : table_(table.data()) {}

  RAVO_AVX512 Characters Decode(Vector bytes, std::size_t length, TextRoom to) const {
    const Bits upper = _mm512_movepi8_mask(bytes);
    const Bits last_quarter = From(bytes, 0xC0);
    StoreUnits(to, length, Units<0>(bytes, upper, last_quarter));
    if (length > kHalf) StoreUnits(to.subspan(kHalf), length - kHalf, Units<1>(bytes, upper, last_quarter));
    return {length, Lowest(length)};
  }

 private:
  template <std::size_t half>
  RAVO_AVX512 Vector Units(Vector bytes, Bits upper, Bits last_quarter) const {
    const Vector places = WidenedHalf<half>(bytes);
    const Vector third = _mm512_permutex2var_epi16(Part(0), places, Part(1));
    const Vector fourth = _mm512_permutex2var_epi16(Part(2), places, Part(3));
    const Vector in_third = _mm512_mask_mov_epi16(places, HalfOf<half>(upper), third);
    return _mm512_mask_mov_epi16(in_third, HalfOf<half>(last_quarter), fourth);
  }

  // Returns a quarter of the upper half of the table.
  RAVO_AVX512 Vector Part(std::size_t i) const { return _mm512_loadu_si512(table_ + 0x80 + i * kHalf); }

  const char16_t* table_;
};

}  // namespace

RAVO_AVX512 Run DecodeSingleByteAvx512(const ByteTable& table, ByteSpan bytes, TextRoom text) noexcept {
  return DecodeBlocks(SingleByteEngine(table), bytes, text);
}

RAVO_AVX512 RunUntil DecodeSingleByteUntilAvx512(ByteSpan bytes, TextRoom text, EndBytes ends,
                                                 const ByteTable& table) noexcept {
  return DecodeUntilEnd(bytes, text, ends, SingleByteEngine(table));
}

}  // namespace ravo::codec

#endif

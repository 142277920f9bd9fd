#include <ravo/codec/kernels/kernels.h>

// Single-byte encodings backwards, by table lookup in registers.
#if defined(__SSE2__) && defined(__x86_64__)
#include <ravo/codec/kernels/block_avx512.h>

#include <algorithm>
#include <bit>

namespace ravo::codec {
namespace {

// A page of 256 bytes in four vectors.
class PageInRegisters {
 public:
  RAVO_AVX512 explicit PageInRegisters(const std::uint8_t* page)
      : parts_{Load(page), Load(page + kWide), Load(page + 2 * kWide), Load(page + 3 * kWide)} {}

  RAVO_AVX512 Vector operator[](Vector places) const {
    const Vector lower = _mm512_permutex2var_epi8(parts_[0], places, parts_[1]);
    const Vector upper = _mm512_permutex2var_epi8(parts_[2], places, parts_[3]);
    return _mm512_mask_mov_epi8(lower, _mm512_movepi8_mask(places), upper);
  }

 private:
  Vector parts_[4];
};

// 64 units: their lower and their upper bytes.
struct UnitBytes {
  Vector lower;
  Vector upper;
};

constexpr __mmask32 kAll = ~__mmask32{0};

RAVO_AVX512 Vector LowerBytes(Vector first, Vector second) {
  const Vector narrow =
      _mm512_maskz_inserti64x4(0xFF, _mm512_setzero_si512(), _mm512_maskz_cvtepi16_epi8(kAll, first), 0);
  return _mm512_maskz_inserti64x4(0xFF, narrow, _mm512_maskz_cvtepi16_epi8(kAll, second), 1);
}

RAVO_AVX512 UnitBytes Split(Vector first, Vector second) {
  return {LowerBytes(first, second),
          LowerBytes(_mm512_maskz_srli_epi16(kAll, first, 8), _mm512_maskz_srli_epi16(kAll, second, 8))};
}

class Encoder {
 public:
  RAVO_AVX512 explicit Encoder(const ReverseTable& table)
      : table_(table),
        latin_(table.pages + 256),
        script_(table.script != 0 ? table.pages + 512 : table.pages) {}

  // Encodes up to 64 units and returns how many, up to one without a byte and to U+0000, which has the byte
  // 0.
  RAVO_AVX512 std::size_t Encode(TextSpan text, std::uint8_t* to) const {
    const std::size_t count = std::min(text.size(), kWide);
    const Bits all = Lowest(count);
    const UnitBytes units =
        Split(_mm512_maskz_loadu_epi16(static_cast<__mmask32>(all), text.data()),
              _mm512_maskz_loadu_epi16(static_cast<__mmask32>(all >> kHalf), text.data() + kHalf));
    const Bits is_latin = EqualTo(units.upper, 0);
    const Bits is_script = EqualTo(units.upper, table_.script) & ~is_latin;
    Vector bytes = latin_[units.lower];
    if (is_script != 0) bytes = _mm512_mask_mov_epi8(bytes, is_script, script_[units.lower]);
    _mm512_mask_storeu_epi8(to, all, bytes);
    Bits missing = _mm512_testn_epi8_mask(bytes, bytes) & (is_latin | is_script) & all;
    missing |= EncodeOthers(text, ~(is_latin | is_script) & all, to);
    return missing == 0 ? count : static_cast<std::size_t>(std::countr_zero(missing));
  }

 private:
  // Encodes the units of other pages and returns those without a byte.
  RAVO_AVX512 Bits EncodeOthers(TextSpan text, Bits others, std::uint8_t* to) const {
    Bits missing = 0;
    for (; others != 0; others &= others - 1) {
      const auto i = static_cast<std::size_t>(std::countr_zero(others));
      to[i] = table_[text[i]];
      if (to[i] == 0) missing |= Bits{1} << i;
    }
    return missing;
  }

  const ReverseTable& table_;
  PageInRegisters latin_;
  PageInRegisters script_;
};

}  // namespace

RAVO_AVX512 Run EncodeSingleByteAvx512(const ReverseTable& table, bool, TextSpan text,
                                       ByteRoom bytes) noexcept {
  const Encoder encoder(table);
  const std::size_t most = std::min(text.size(), bytes.size());
  std::size_t at = 0;
  while (at < most) {
    const std::size_t length = std::min(most - at, kWide);
    const std::size_t count = encoder.Encode(text.subspan(at, length), bytes.data() + at);
    at += count;
    if (count < length) break;
  }
  return {at, at};
}

}  // namespace ravo::codec

#endif

#include <ravo/codec/kernels/kernels.h>

#if defined(__SSE2__)
#include <ravo/codec/kernels/block_avx2.h>

#define RAVO_TARGET RAVO_AVX2

namespace ravo::codec {
namespace {

using Bytes = WideBlock<std::uint8_t>;
using Units = WideBlock<char16_t>;

RAVO_AVX2 std::uint8_t* PutPairs(__m128i pairs, unsigned ascii, std::uint8_t* to);
RAVO_AVX2 char16_t* PutUnits(__m128i units, unsigned kept, char16_t* to);

RAVO_AVX2 inline bool HasNoneOf(Units units, unsigned bits) {
  return units.HasNoneOf(Units(static_cast<char16_t>(bits)));
}

RAVO_AVX2 inline std::uint8_t* PutAscii(Units low, Units high, std::uint8_t* to) {
  // Packing interleaves the halves of both blocks.
  constexpr int kInOrder = 0b11'01'10'00;
  Bytes(_mm256_permute4x64_epi64(_mm256_packus_epi16(low.Lanes(), high.Lanes()), kInOrder)).Store(to);
  return to + Bytes::kUnits;
}

// Returns a bit for each lane of two blocks, in packed order: their halves interleaved.
RAVO_AVX2 inline std::uint32_t PackedBits(Units low, Units high) {
  return Bytes(_mm256_packs_epi16(low.Lanes(), high.Lanes())).Bits();
}

RAVO_AVX2 inline std::uint8_t* PutBlockOfPairs(Units low, Units high, Units low_ascii, Units high_ascii,
                                               std::uint8_t* to) {
  const std::uint32_t ascii = PackedBits(low_ascii, high_ascii);
  to = PutPairs(low.Low(), ascii & 0xFF, to);
  to = PutPairs(low.High(), ascii >> 16 & 0xFF, to);
  to = PutPairs(high.Low(), ascii >> 8 & 0xFF, to);
  return PutPairs(high.High(), ascii >> 24, to);
}

RAVO_AVX2 inline char16_t* PutWidened(Bytes bytes, char16_t* to) {
  Units(_mm256_cvtepu8_epi16(bytes.Low())).Store(to);
  Units(_mm256_cvtepu8_epi16(bytes.High())).Store(to + Units::kUnits);
  return to + Bytes::kUnits;
}

// Returns the bytes `count` positions earlier.
template <int count>
RAVO_AVX2 inline Bytes Before(Bytes bytes, Bytes before) {
  const __m256i halves = _mm256_permute2x128_si256(before.Lanes(), bytes.Lanes(), 0x21);
  return Bytes(_mm256_alignr_epi8(bytes.Lanes(), halves, 16 - count));
}

// Interleave the first and the last eight bytes of each half of two blocks.
RAVO_AVX2 inline Bytes InterleavedLow(Bytes lower, Bytes upper) {
  return Bytes(_mm256_unpacklo_epi8(lower.Lanes(), upper.Lanes()));
}
RAVO_AVX2 inline Bytes InterleavedHigh(Bytes lower, Bytes upper) {
  return Bytes(_mm256_unpackhi_epi8(lower.Lanes(), upper.Lanes()));
}

RAVO_AVX2 inline Units Weighted(Bytes pairs) {
  return Units(_mm256_maddubs_epi16(pairs.Lanes(), _mm256_set1_epi16(0x4001)));
}

RAVO_AVX2 inline char16_t* PutBlockOfUnits(Units low, Units high, std::uint32_t kept, char16_t* to) {
  to = PutUnits(low.Low(), kept & 0xFF, to);
  to = PutUnits(high.Low(), kept >> 8 & 0xFF, to);
  to = PutUnits(low.High(), kept >> 16 & 0xFF, to);
  return PutUnits(high.High(), kept >> 24, to);
}

}  // namespace
}  // namespace ravo::codec

#include <ravo/codec/kernels/utf8_shuffling.inc>

namespace ravo::codec {

RAVO_AVX2 Run DecodeUtf8Avx2(ByteSpan bytes, TextRoom text) noexcept { return DecodeShuffling(bytes, text); }
RAVO_AVX2 Run EncodeUtf8Avx2(TextSpan text, ByteRoom bytes) noexcept { return EncodeShuffling(text, bytes); }

RAVO_AVX2 std::size_t Utf8LengthAvx2(TextSpan text) noexcept {
  const Units beyond_ascii(char16_t{0xFF80});
  const Units long_ones(char16_t{0xF800});
  std::size_t at = 0;
  std::size_t length = text.size();
  for (; text.size() - at >= 2 * Units::kUnits; at += 2 * Units::kUnits) {
    const Units low = Units::Load(text.data() + at);
    const Units high = Units::Load(text.data() + at + Units::kUnits);
    if ((low | high).HasNoneOf(beyond_ascii)) continue;
    length +=
        CountBits(~PackedBits((low & beyond_ascii).EqualTo(Units()), (high & beyond_ascii).EqualTo(Units())));
    if ((low | high).HasNoneOf(long_ones)) continue;
    length += CountBits(~PackedBits((low & long_ones).EqualTo(Units()), (high & long_ones).EqualTo(Units())));
  }
  for (; at < text.size(); ++at) length += (text[at] >= 0x80 ? 1U : 0U) + (text[at] >= 0x800 ? 1U : 0U);
  return length;
}

bool HasAvx2() noexcept {
  __builtin_cpu_init();
  return __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("popcnt") != 0;
}

}  // namespace ravo::codec

#endif

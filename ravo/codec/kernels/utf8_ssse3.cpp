#include <ravo/codec/kernels/block.h>
#include <ravo/codec/kernels/kernels.h>

#if defined(__SSE2__)
#include <immintrin.h>

#define RAVO_TARGET __attribute__((target("ssse3,popcnt")))

namespace ravo::codec {
namespace {

using Bytes = Block<std::uint8_t>;
using Units = Block<char16_t>;

RAVO_TARGET std::uint8_t* PutPairs(__m128i pairs, unsigned ascii, std::uint8_t* to);
RAVO_TARGET char16_t* PutUnits(__m128i units, unsigned kept, char16_t* to);

RAVO_TARGET inline bool HasNoneOf(Units units, unsigned bits) {
  return (units & Units(static_cast<char16_t>(bits))).EqualTo(Units()).Bits() == 0xFFFF;
}

RAVO_TARGET inline std::uint8_t* PutAscii(Units low, Units high, std::uint8_t* to) {
  Narrowed(low, high).Store(to);
  return to + Bytes::kUnits;
}

RAVO_TARGET inline std::uint8_t* PutBlockOfPairs(Units low, Units high, Units low_ascii, Units high_ascii,
                                                 std::uint8_t* to) {
  const std::uint32_t ascii = NarrowedLanes(low_ascii, high_ascii).Bits();
  to = PutPairs(low.Lanes(), ascii & 0xFF, to);
  return PutPairs(high.Lanes(), ascii >> 8, to);
}

RAVO_TARGET inline char16_t* PutWidened(Bytes bytes, char16_t* to) {
  WidenedLow(bytes).Store(to);
  WidenedHigh(bytes).Store(to + Units::kUnits);
  return to + Bytes::kUnits;
}

// Returns the bytes `count` positions earlier.
template <int count>
RAVO_TARGET inline Bytes Before(Bytes bytes, Bytes before) {
  return Bytes(_mm_alignr_epi8(bytes.Lanes(), before.Lanes(), 16 - count));
}

RAVO_TARGET inline Bytes InterleavedLow(Bytes lower, Bytes upper) {
  return Bytes(_mm_unpacklo_epi8(lower.Lanes(), upper.Lanes()));
}
RAVO_TARGET inline Bytes InterleavedHigh(Bytes lower, Bytes upper) {
  return Bytes(_mm_unpackhi_epi8(lower.Lanes(), upper.Lanes()));
}

RAVO_TARGET inline Units Weighted(Bytes pairs) {
  return Units(_mm_maddubs_epi16(pairs.Lanes(), _mm_set1_epi16(0x4001)));
}

RAVO_TARGET inline char16_t* PutBlockOfUnits(Units low, Units high, std::uint32_t kept, char16_t* to) {
  to = PutUnits(low.Lanes(), kept & 0xFF, to);
  return PutUnits(high.Lanes(), kept >> 8 & 0xFF, to);
}

}  // namespace
}  // namespace ravo::codec

#include <ravo/codec/kernels/utf8_shuffling.inc>

namespace ravo::codec {

RAVO_TARGET Run DecodeUtf8Ssse3(ByteSpan bytes, TextRoom text) noexcept {
  return DecodeShuffling(bytes, text);
}
RAVO_TARGET Run EncodeUtf8Ssse3(TextSpan text, ByteRoom bytes) noexcept {
  return EncodeShuffling(text, bytes);
}

bool HasSsse3() noexcept {
  __builtin_cpu_init();
  return __builtin_cpu_supports("ssse3") != 0 && __builtin_cpu_supports("popcnt") != 0;
}

}  // namespace ravo::codec

#endif

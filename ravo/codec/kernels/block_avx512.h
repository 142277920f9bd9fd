#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include <immintrin.h>

/// Blocks of 64 bytes, for the sources named ..._avx512.cpp; their functions run only if `HasAvx512`. A
/// comparison gives a mask, one bit for each lane.
#define RAVO_AVX512 \
  __attribute__((target("avx512f,avx512bw,avx512vl,avx512vbmi,avx512vbmi2,bmi,bmi2,popcnt")))

namespace ravo::codec {

using Vector = __m512i;
using Bits = std::uint64_t;

inline constexpr std::size_t kWide = sizeof(Vector);
inline constexpr std::size_t kHalf = kWide / 2;

/// Returns a mask of the lowest `count` bits, up to all of them.
RAVO_AVX512 inline Bits Lowest(std::size_t count) {
  return _bzhi_u64(~Bits{0}, static_cast<unsigned>(count));
}

RAVO_AVX512 inline std::uint32_t LowestOfHalf(std::size_t count) {
  return _bzhi_u32(~std::uint32_t{0}, static_cast<unsigned>(count));
}

RAVO_AVX512 inline Vector Load(const void* from) { return _mm512_loadu_si512(from); }
RAVO_AVX512 inline Vector Everywhere(int byte) { return _mm512_set1_epi8(static_cast<char>(byte)); }
RAVO_AVX512 inline Bits EqualTo(Vector bytes, int byte) {
  return _mm512_cmpeq_epi8_mask(bytes, Everywhere(byte));
}
RAVO_AVX512 inline Bits From(Vector bytes, int first) {
  return _mm512_cmpge_epu8_mask(bytes, Everywhere(first));
}

/// Returns half a block of bytes widened to units.
RAVO_AVX512 inline Vector Widened(const std::uint8_t* from) {
  return _mm512_cvtepu8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(from)));
}

template <std::size_t half>
RAVO_AVX512 inline __mmask32 HalfOf(Bits bits) {
  return static_cast<__mmask32>(bits >> (half * kHalf));
}

/// Stores the first `count` units, and all of them if there is room: a load from a masked store cannot be
/// forwarded and waits for the cache.
RAVO_AVX512 inline void StoreUnits(std::span<char16_t> to, std::size_t count, Vector text) {
  if (to.size() >= kHalf)
    _mm512_storeu_si512(to.data(), text);
  else
    _mm512_mask_storeu_epi16(to.data(), LowestOfHalf(count), text);
}

}  // namespace ravo::codec

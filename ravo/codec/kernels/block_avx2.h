#pragma once

#include <cstddef>
#include <cstdint>

#include <immintrin.h>

/// Enables AVX2 in sources named ..._avx2.cpp; their functions run only if `HasAvx2`.
#define RAVO_AVX2 __attribute__((target("avx2,popcnt")))

namespace ravo::codec {

/// As `Block`, with 32 bytes.
template <class Unit>
class WideBlock {
  static constexpr bool kIsBytes = sizeof(Unit) == 1;

 public:
  static constexpr std::size_t kUnits = sizeof(__m256i) / sizeof(Unit);

  RAVO_AVX2 WideBlock() noexcept : lanes_(_mm256_setzero_si256()) {}
  RAVO_AVX2 explicit WideBlock(__m256i lanes) noexcept : lanes_(lanes) {}
  RAVO_AVX2 explicit WideBlock(Unit unit) noexcept
      : lanes_(kIsBytes ? _mm256_set1_epi8(static_cast<char>(unit))
                        : _mm256_set1_epi16(static_cast<short>(unit))) {}
  template <class Other>
  RAVO_AVX2 explicit WideBlock(WideBlock<Other> other) noexcept : lanes_(other.Lanes()) {}

  [[nodiscard]] RAVO_AVX2 static WideBlock Load(const void* from) noexcept {
    return WideBlock(_mm256_loadu_si256(static_cast<const __m256i*>(from)));
  }
  RAVO_AVX2 void Store(void* to) const noexcept { _mm256_storeu_si256(static_cast<__m256i*>(to), lanes_); }
  [[nodiscard]] RAVO_AVX2 __m256i Lanes() const noexcept { return lanes_; }

  [[nodiscard]] RAVO_AVX2 WideBlock operator|(WideBlock other) const noexcept {
    return WideBlock(_mm256_or_si256(lanes_, other.lanes_));
  }
  [[nodiscard]] RAVO_AVX2 WideBlock operator&(WideBlock other) const noexcept {
    return WideBlock(_mm256_and_si256(lanes_, other.lanes_));
  }
  [[nodiscard]] RAVO_AVX2 WideBlock Without(WideBlock other) const noexcept {
    return WideBlock(_mm256_andnot_si256(other.lanes_, lanes_));
  }
  [[nodiscard]] RAVO_AVX2 WideBlock Left(int count) const noexcept {
    return WideBlock(_mm256_slli_epi16(lanes_, count));
  }
  [[nodiscard]] RAVO_AVX2 WideBlock Right(int count) const noexcept {
    return WideBlock(_mm256_srli_epi16(lanes_, count));
  }
  [[nodiscard]] RAVO_AVX2 WideBlock EqualTo(WideBlock other) const noexcept {
    return WideBlock(kIsBytes ? _mm256_cmpeq_epi8(lanes_, other.lanes_)
                              : _mm256_cmpeq_epi16(lanes_, other.lanes_));
  }
  [[nodiscard]] RAVO_AVX2 WideBlock SignedLess(WideBlock other) const noexcept {
    return WideBlock(kIsBytes ? _mm256_cmpgt_epi8(other.lanes_, lanes_)
                              : _mm256_cmpgt_epi16(other.lanes_, lanes_));
  }
  /// Returns the top bit of each byte.
  [[nodiscard]] RAVO_AVX2 std::uint32_t Bits() const noexcept {
    return static_cast<std::uint32_t>(_mm256_movemask_epi8(lanes_));
  }
  [[nodiscard]] RAVO_AVX2 bool AllAscii() const noexcept { return Bits() == 0; }
  [[nodiscard]] RAVO_AVX2 bool HasNoneOf(WideBlock bits) const noexcept {
    return _mm256_testz_si256(lanes_, bits.lanes_) != 0;
  }
  [[nodiscard]] RAVO_AVX2 __m128i Low() const noexcept { return _mm256_castsi256_si128(lanes_); }
  [[nodiscard]] RAVO_AVX2 __m128i High() const noexcept { return _mm256_extracti128_si256(lanes_, 1); }

 private:
  __m256i lanes_;
};

}  // namespace ravo::codec

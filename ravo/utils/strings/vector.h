#pragma once

#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>

/// Sixteen bytes at a time, with what every processor of our targets has.
namespace ravo::strings {

inline constexpr std::size_t kVectorBytes = 16;

[[nodiscard]] inline __m128i LoadVector(const void* bytes) noexcept {
  return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}
inline void StoreVector(void* bytes, __m128i vector) noexcept {
  _mm_storeu_si128(static_cast<__m128i*>(bytes), vector);
}

/// Every lane with one character.
[[nodiscard]] inline __m128i Everywhere(char c) noexcept { return _mm_set1_epi8(c); }
[[nodiscard]] inline __m128i Everywhere(char16_t c) noexcept {
  return _mm_set1_epi16(static_cast<std::int16_t>(c));
}

/// Lanes of ones where two vectors of characters of that type have the same one.
template <class Char>
[[nodiscard]] inline __m128i SameLanes(__m128i left, __m128i right) noexcept {
  return sizeof(Char) == 1 ? _mm_cmpeq_epi8(left, right) : _mm_cmpeq_epi16(left, right);
}

/// One bit per byte of a vector.
[[nodiscard]] inline unsigned BitsOf(__m128i vector) noexcept {
  return static_cast<unsigned>(_mm_movemask_epi8(vector));
}

/// The number of zeros below the lowest bit of a number that is not 0.
[[nodiscard]] inline unsigned LowestBit(unsigned bits) noexcept {
  return static_cast<unsigned>(__builtin_ctz(bits));
}

/// ASCII letters in lower case, every other character as it is. Lanes are taken as signed: characters of the
/// upper half are below every letter.
template <class Char>
[[nodiscard]] inline __m128i LowerLanes(__m128i text) noexcept {
  constexpr bool kBytes = sizeof(Char) == 1;
  const __m128i before_a = Everywhere(static_cast<Char>('A' - 1));
  const __m128i behind_z = Everywhere(static_cast<Char>('Z' + 1));
  const __m128i upper = kBytes
                            ? _mm_and_si128(_mm_cmpgt_epi8(text, before_a), _mm_cmpgt_epi8(behind_z, text))
                            : _mm_and_si128(_mm_cmpgt_epi16(text, before_a), _mm_cmpgt_epi16(behind_z, text));
  return _mm_or_si128(text, _mm_and_si128(upper, Everywhere(static_cast<Char>('a' - 'A'))));
}

/// Lanes of ones where a code unit is one of `low` to `high`.
[[nodiscard]] inline __m128i LanesIn(__m128i units, char16_t low, char16_t high) noexcept {
  const __m128i moved = _mm_add_epi16(units, Everywhere(static_cast<char16_t>(0x8000 - low)));
  return _mm_cmpgt_epi16(Everywhere(static_cast<char16_t>(0x8000 + high - low + 1)), moved);
}

}  // namespace ravo::strings
#endif

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// Sixteen characters at once, by SSE2 where the compiler has it.
namespace ravo::codec {

inline constexpr std::size_t kBlock = 16;

#if defined(__SSE2__)

using Vector = __m128i;

inline Vector LoadVector(const void* from) { return _mm_loadu_si128(static_cast<const Vector*>(from)); }
inline void StoreVector(void* to, Vector vector) { _mm_storeu_si128(static_cast<Vector*>(to), vector); }
inline unsigned Mask(Vector bytes) { return static_cast<unsigned>(_mm_movemask_epi8(bytes)); }

/// Widens blocks of ASCII; false, with nothing of meaning written, where a byte is none.
template <std::size_t blocks>
bool WidenAscii(const std::uint8_t* from, char16_t* to) {
  Vector seen = _mm_setzero_si128();
  for (std::size_t i = 0; i < blocks; ++i) seen = _mm_or_si128(seen, LoadVector(from + i * kBlock));
  if (Mask(seen) != 0) return false;
  for (std::size_t i = 0; i < blocks; ++i) {
    const Vector bytes = LoadVector(from + i * kBlock);
    StoreVector(to + i * kBlock, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
    StoreVector(to + i * kBlock + kBlock / 2, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
  }
  return true;
}

/// Narrows blocks of ASCII; false, with nothing written, where a character is none.
template <std::size_t blocks>
bool NarrowAscii(const char16_t* from, std::uint8_t* to) {
  Vector seen = _mm_setzero_si128();
  for (std::size_t i = 0; i < 2 * blocks; ++i) seen = _mm_or_si128(seen, LoadVector(from + i * kBlock / 2));
  const Vector beyond = _mm_and_si128(seen, _mm_set1_epi16(-0x80));
  if (Mask(_mm_cmpeq_epi16(beyond, _mm_setzero_si128())) != 0xFFFF) return false;
  for (std::size_t at = 0; at < blocks * kBlock; at += kBlock) {
    StoreVector(to + at, _mm_packus_epi16(LoadVector(from + at), LoadVector(from + at + kBlock / 2)));
  }
  return true;
}

#else

template <std::size_t blocks>
bool WidenAscii(const std::uint8_t* from, char16_t* to) {
  unsigned seen = 0;
  for (std::size_t i = 0; i < blocks * kBlock; ++i) seen |= from[i];
  if (seen >= 0x80) return false;
  for (std::size_t i = 0; i < blocks * kBlock; ++i) to[i] = from[i];
  return true;
}

template <std::size_t blocks>
bool NarrowAscii(const char16_t* from, std::uint8_t* to) {
  unsigned seen = 0;
  for (std::size_t i = 0; i < blocks * kBlock; ++i) seen |= from[i];
  if (seen >= 0x80) return false;
  for (std::size_t i = 0; i < blocks * kBlock; ++i) to[i] = static_cast<std::uint8_t>(from[i]);
  return true;
}

#endif

inline bool WidenAsciiBlock(const std::uint8_t* from, char16_t* to) { return WidenAscii<1>(from, to); }
inline bool NarrowAsciiBlock(const char16_t* from, std::uint8_t* to) { return NarrowAscii<1>(from, to); }

/// How many blocks fit both a source and a target of that many characters.
constexpr std::size_t WholeBlocks(std::size_t source, std::size_t room, std::size_t block = kBlock) {
  return (source < room ? source : room) / block * block;
}

}  // namespace ravo::codec

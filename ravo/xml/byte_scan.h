#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Loops over bytes that the scanner and the tree spend their time in.
namespace ravo::xml {

/// How many readable bytes must stand behind the end of what `FindEither` looks through.
inline constexpr std::size_t kReadAhead = 16;

/// The first `one` or `two` from `at` on. One of them must occur, and `kReadAhead` readable bytes behind it.
[[nodiscard]] inline char* FindEither(char* at, char one, char two) noexcept {
#ifdef __SSE2__
  const __m128i ones = _mm_set1_epi8(one);
  const __m128i twos = _mm_set1_epi8(two);
  for (;; at += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    const int found =
        _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(bytes, ones), _mm_cmpeq_epi8(bytes, twos)));
    if (found != 0) return at + __builtin_ctz(static_cast<unsigned>(found));
  }
#else
  while (*at != one && *at != two) ++at;
  return at;
#endif
}

/// Whether a token's text stands as it is: no line break of two bytes, no two blanks.
[[nodiscard]] bool IsNormalised(std::string_view bytes) noexcept;

/// Removes CR LF pairs, then LF CR pairs, then makes each run of blanks one.
void Normalise(std::string& bytes);

[[nodiscard]] constexpr bool IsBlankByte(char ch) noexcept { return static_cast<unsigned char>(ch) <= 0x20; }

/// `bytes` without the bytes 0 to 32 at both ends.
[[nodiscard]] constexpr std::string_view TrimmedBytes(std::string_view bytes) noexcept {
  while (!bytes.empty() && IsBlankByte(bytes.front())) bytes.remove_prefix(1);
  while (!bytes.empty() && IsBlankByte(bytes.back())) bytes.remove_suffix(1);
  return bytes;
}

[[nodiscard]] constexpr char LowerByte(char ch) noexcept {
  return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + ('a' - 'A')) : ch;
}

}  // namespace ravo::xml

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

/// Loops over bytes on the hot path of tokenizer and loader.
namespace ravo::xml {

/// The number of readable bytes that the searches need after the end of their text.
inline constexpr std::size_t kReadAhead = 16;

/// Returns the first `one` or `two` from `at` on. One of them must occur, with `kReadAhead` readable bytes
/// after it.
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

/// Returns the first byte from `at` on that is a control character, "&", "<", ">", a double quote or the
/// second of two blanks, or `end`. A blank before `at` does not count. `kReadAhead` bytes after `end` must be
/// readable.
[[nodiscard]] inline const char* EndOfOrdinary(const char* at, const char* end) noexcept {
#ifdef __SSE2__
  unsigned blank_before = 0;
  for (; at < end; at += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    const auto is = [&](char ch) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(ch)); };
    const __m128i control = _mm_cmpeq_epi8(_mm_max_epu8(bytes, _mm_set1_epi8(0x1F)), _mm_set1_epi8(0x1F));
    // "<" and ">" differ in one bit, and so do the double quote and "&" in another.
    const __m128i brackets = _mm_cmpeq_epi8(_mm_or_si128(bytes, _mm_set1_epi8(2)), _mm_set1_epi8('>'));
    const __m128i quotes = _mm_cmpeq_epi8(_mm_or_si128(bytes, _mm_set1_epi8(4)), _mm_set1_epi8('&'));
    const auto blanks = static_cast<unsigned>(_mm_movemask_epi8(is(' ')));
    const auto ends =
        static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(control, _mm_or_si128(brackets, quotes)))) |
        (blanks & (blanks << 1 | blank_before));
    blank_before = blanks >> 15;
    if (ends != 0) {
      const char* const found = at + __builtin_ctz(ends);
      return found < end ? found : end;
    }
  }
  return end;
#else
  for (bool after_blank = false; at != end; ++at) {
    const char ch = *at;
    const bool special =
        static_cast<unsigned char>(ch) < 0x20 || ch == '&' || ch == '<' || ch == '>' || ch == '"';
    if (special || (ch == ' ' && after_blank)) break;
    after_blank = ch == ' ';
  }
  return at;
#endif
}

/// Returns true only if `Normalise` changes nothing; false also for any other text with a line feed.
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

#include <ravo/utils/strings/find_wide.h>

#ifdef __SSE2__
#include <cstdint>

#include <immintrin.h>

#define RAVO_WIDE __attribute__((target("avx2")))

namespace ravo::strings {
namespace {

RAVO_WIDE __m256i LoadWide(const void* bytes) {
  return _mm256_loadu_si256(static_cast<const __m256i*>(bytes));
}

RAVO_WIDE __m256i EverywhereWide(char c) { return _mm256_set1_epi8(c); }
RAVO_WIDE __m256i EverywhereWide(char16_t c) { return _mm256_set1_epi16(static_cast<std::int16_t>(c)); }

template <class Char>
RAVO_WIDE __m256i Same(const Char* text, __m256i wanted) {
  return sizeof(Char) == 1 ? _mm256_cmpeq_epi8(LoadWide(text), wanted)
                           : _mm256_cmpeq_epi16(LoadWide(text), wanted);
}

template <class Char>
RAVO_WIDE __m256i Candidates(const Char* text, const Char* last_text, __m256i first, __m256i last) {
  return _mm256_and_si256(Same(text, first), Same(last_text, last));
}

// Two vectors of places at a time.
template <class Char>
RAVO_WIDE std::size_t PassOverBlocks(const Char* text, const Char* last_text, std::size_t places,
                                     const Char (&ends)[2]) {
  constexpr std::size_t kLanes = sizeof(__m256i) / sizeof(Char);
  const __m256i first = EverywhereWide(ends[0]);
  const __m256i last = EverywhereWide(ends[1]);
  std::size_t at = 0;
  for (; places - at >= 2 * kLanes; at += 2 * kLanes) {
    const __m256i low = Candidates(text + at, last_text + at, first, last);
    const __m256i high = Candidates(text + at + kLanes, last_text + at + kLanes, first, last);
    if (_mm256_movemask_epi8(_mm256_or_si256(low, high)) != 0) break;
  }
  return at;
}

}  // namespace

std::size_t PassOverWidely(const char* text, const char* last_text, std::size_t places,
                           const char (&ends)[2]) noexcept {
  return PassOverBlocks(text, last_text, places, ends);
}
std::size_t PassOverWidely(const char16_t* text, const char16_t* last_text, std::size_t places,
                           const char16_t (&ends)[2]) noexcept {
  return PassOverBlocks(text, last_text, places, ends);
}

bool CanPassOverWidely() noexcept { return __builtin_cpu_supports("avx2") != 0; }

}  // namespace ravo::strings

#else

namespace ravo::strings {

std::size_t PassOverWidely(const char*, const char*, std::size_t, const char (&)[2]) noexcept { return 0; }
std::size_t PassOverWidely(const char16_t*, const char16_t*, std::size_t, const char16_t (&)[2]) noexcept {
  return 0;
}
bool CanPassOverWidely() noexcept { return false; }

}  // namespace ravo::strings

#endif

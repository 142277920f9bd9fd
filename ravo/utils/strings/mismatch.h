#pragma once

#include <ravo/utils/strings/text_kind.h>
#include <ravo/utils/strings/vector.h>

namespace ravo::strings {

/// The plain comparison: the first place at which two texts of one length differ, the length where they are
/// the same.
template <class Fold, class Char>
[[nodiscard]] std::size_t MismatchPlainly(const Char* left, const Char* right, std::size_t from,
                                          std::size_t length) noexcept {
  while (from < length && SameChar<Fold>(left[from], right[from])) ++from;
  return from;
}

#ifdef __SSE2__

/// One bit per byte of a vector: set where two texts differ as far as vectors can tell.
template <class Fold, class Char>
[[nodiscard]] inline unsigned DifferentBytes(const Char* left, const Char* right) noexcept {
  __m128i here = LoadVector(left);
  __m128i there = LoadVector(right);
  if constexpr (!Fold::kIsExact) {
    here = LowerLanes<Char>(here);
    there = LowerLanes<Char>(there);
  }
  return ~BitsOf(SameLanes<Char>(here, there)) & 0xFFFF;
}

/// Lanes of ones where `upper` is an upper-case letter of Latin whose lower case is the next code: from
/// U+0100 to U+017E even codes, but odd ones where the pairs begin at one.
[[nodiscard]] inline __m128i HaveLowerNext(__m128i upper) noexcept {
  const __m128i odd = _mm_srai_epi16(_mm_slli_epi16(upper, 15), 15);
  const __m128i begin_odd = _mm_or_si128(LanesIn(upper, 0x138, 0x148), LanesIn(upper, 0x178, 0x17E));
  const __m128i letters =
      _mm_andnot_si128(SameLanes<char16_t>(upper, Everywhere(char16_t{0x130})), LanesIn(upper, 0x100, 0x17E));
  return _mm_and_si128(letters, SameLanes<char16_t>(odd, begin_odd));
}

/// The same for letters of Latin-1 beyond ASCII, whose lower case is 32 codes behind.
[[nodiscard]] inline __m128i HaveLowerBehind(__m128i upper) noexcept {
  return _mm_andnot_si128(SameLanes<char16_t>(upper, Everywhere(char16_t{0xD7})), LanesIn(upper, 0xC0, 0xDE));
}

/// The same for UTF-16 after case folding: two units that differ fold alike where the lower code is an
/// upper-case letter and the distance is the one to its lower case. Letters beyond U+017F are left to others.
template <>
[[nodiscard]] inline unsigned DifferentBytes<Folded, char16_t>(const char16_t* left,
                                                               const char16_t* right) noexcept {
  const __m128i here = LoadVector(left);
  const __m128i there = LoadVector(right);
  // Signed: codes from U+8000 on pair with nothing below them.
  const __m128i upper = _mm_min_epi16(here, there);
  const __m128i distance = _mm_sub_epi16(_mm_max_epi16(here, there), upper);
  const __m128i is_far = SameLanes<char16_t>(distance, Everywhere(u' '));
  const __m128i ascii =
      _mm_or_si128(SameLanes<char16_t>(here, there), _mm_and_si128(is_far, LanesIn(upper, u'A', u'Z')));
  const unsigned different = ~BitsOf(ascii) & 0xFFFF;
  if (different == 0) return 0;
  const __m128i is_next = SameLanes<char16_t>(distance, Everywhere(char16_t{1}));
  const __m128i latin = _mm_or_si128(_mm_and_si128(is_far, HaveLowerBehind(upper)),
                                     _mm_and_si128(is_next, HaveLowerNext(upper)));
  return different & ~BitsOf(latin);
}

/// The first place of those in `bits`, one per byte of a vector, at which two texts differ indeed.
template <class Fold, class Char>
[[nodiscard]] std::size_t MismatchAmong(unsigned bits, const Char* left, const Char* right,
                                        std::size_t at) noexcept {
  constexpr unsigned kLane = (1U << sizeof(Char)) - 1;
  while (bits != 0) {
    const unsigned bit = LowestBit(bits);
    const std::size_t place = at + bit / sizeof(Char);
    if (Fold::kIsExact || Fold::Of(left[place]) != Fold::Of(right[place])) return place;
    bits &= ~(kLane << bit);
  }
  return kNone;
}

/// The same, a vector at a time.
template <class Fold, class Char>
[[nodiscard]] std::size_t Mismatch(const Char* left, const Char* right, std::size_t length) noexcept {
  constexpr std::size_t kLanes = kVectorBytes / sizeof(Char);
  if (length < kLanes) return MismatchPlainly<Fold>(left, right, 0, length);
  for (std::size_t at = 0; at < length; at += kLanes) {
    // The last vector looks again at some of what the one before it has seen.
    if (length - at < kLanes) at = length - kLanes;
    const unsigned bits = DifferentBytes<Fold>(left + at, right + at);
    if (bits == 0) continue;
    if (const std::size_t place = MismatchAmong<Fold>(bits, left, right, at); place != kNone) return place;
  }
  return length;
}

#else

template <class Fold, class Char>
[[nodiscard]] std::size_t Mismatch(const Char* left, const Char* right, std::size_t length) noexcept {
  return MismatchPlainly<Fold>(left, right, 0, length);
}

#endif

}  // namespace ravo::strings

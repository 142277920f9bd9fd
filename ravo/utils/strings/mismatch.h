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

/// The same, a vector at a time.
template <class Fold, class Char>
[[nodiscard]] std::size_t Mismatch(const Char* left, const Char* right, std::size_t length) noexcept {
  constexpr std::size_t kLanes = kVectorBytes / sizeof(Char);
  constexpr unsigned kLane = (1U << sizeof(Char)) - 1;
  std::size_t at = 0;
  for (; length - at >= kLanes; at += kLanes) {
    for (unsigned bits = DifferentBytes<Fold>(left + at, right + at); bits != 0;) {
      const unsigned bit = LowestBit(bits);
      const std::size_t place = at + bit / sizeof(Char);
      if (Fold::kIsExact || Fold::Of(left[place]) != Fold::Of(right[place])) return place;
      bits &= ~(kLane << bit);
    }
  }
  return MismatchPlainly<Fold>(left, right, at, length);
}

#else

template <class Fold, class Char>
[[nodiscard]] std::size_t Mismatch(const Char* left, const Char* right, std::size_t length) noexcept {
  return MismatchPlainly<Fold>(left, right, 0, length);
}

#endif

}  // namespace ravo::strings

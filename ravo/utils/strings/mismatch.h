#pragma once

#include <ravo/codec/kernels/block.h>
#include <ravo/utils/strings/text_kind.h>

namespace ravo::strings {

/// Returns the first index from `from` on at which two texts of equal length differ; `length` if there is
/// none.
template <class Fold, class Char>
[[nodiscard]] std::size_t MismatchPlainly(const Char* left, const Char* right, std::size_t from,
                                          std::size_t length) noexcept {
  while (from < length && SameChar<Fold>(left[from], right[from])) ++from;
  return from;
}

/// Returns the lanes at which two texts may differ. Lanes that are not among them are equal.
template <class Fold, class Char>
[[nodiscard]] inline codec::Hits<Char> DifferentLanes(const Char* left, const Char* right) noexcept {
  auto here = codec::Block<Char>::Load(left);
  auto there = codec::Block<Char>::Load(right);
  if constexpr (!Fold::kIsExact) {
    here = codec::AsciiLowered(here);
    there = codec::AsciiLowered(there);
  }
  return ~here.EqualTo(there).AsHits();
}

using Units = codec::Block<char16_t>;

/// Returns ones in the lanes of Latin upper-case letters whose lower case is the next code: even codes from
/// U+0100 to U+017E, but odd ones in the ranges whose pairs begin at an odd code.
[[nodiscard]] inline Units HaveLowerNext(Units upper) noexcept {
  const Units odd = (upper & Units(char16_t{1})).EqualTo(char16_t{1});
  const Units begin_odd = upper.Within(0x138, 0x148) | upper.Within(0x178, 0x17E);
  const Units letters = upper.Within(0x100, 0x17E).Without(upper.EqualTo(char16_t{0x130}));
  return letters & odd.EqualTo(begin_odd);
}

/// Returns ones in the lanes of Latin-1 upper-case letters past ASCII: their lower case is 32 codes later.
[[nodiscard]] inline Units HaveLowerFar(Units upper) noexcept {
  return upper.Within(0xC0, 0xDE).Without(upper.EqualTo(char16_t{0xD7}));
}

/// As above for UTF-16 after case folding: two different units fold alike if the lower code is an upper-case
/// letter and the higher one its lower case. Letters past U+017F count as different here.
template <>
[[nodiscard]] inline codec::Hits<char16_t> DifferentLanes<Folded, char16_t>(const char16_t* left,
                                                                            const char16_t* right) noexcept {
  const Units here = Units::Load(left);
  const Units there = Units::Load(right);
  // Signed comparison is safe: codes from U+8000 on pair with no lower code.
  const Units upper = SignedLesser(here, there);
  const Units distance = SignedGreater(here, there) - upper;
  const Units is_far = distance.EqualTo(u' ');
  const Units ascii = here.EqualTo(there) | (is_far & upper.Within(u'A', u'Z'));
  const codec::Hits<char16_t> different = ~ascii.AsHits();
  if (different.None()) return different;
  const Units is_next = distance.EqualTo(char16_t{1});
  const Units latin = (is_far & HaveLowerFar(upper)) | (is_next & HaveLowerNext(upper));
  return different & ~latin.AsHits();
}

/// Returns the index of the first of `lanes` at which two texts differ after folding; `kNone` if there is
/// none.
template <class Fold, class Char>
[[nodiscard]] std::size_t MismatchAmong(codec::Hits<Char> lanes, const Char* left, const Char* right,
                                        std::size_t at) noexcept {
  for (; !lanes.None(); lanes = lanes.WithoutFirst()) {
    const std::size_t place = at + lanes.First();
    if (Fold::kIsExact || Fold::Of(left[place]) != Fold::Of(right[place])) return place;
  }
  return kNone;
}

/// As `MismatchPlainly` from index 0, a block at a time.
template <class Fold, class Char>
[[nodiscard]] std::size_t Mismatch(const Char* left, const Char* right, std::size_t length) noexcept {
  constexpr std::size_t kLanes = codec::Block<Char>::kUnits;
  if (length < kLanes) return MismatchPlainly<Fold>(left, right, 0, length);
  for (std::size_t at = 0; at < length; at += kLanes) {
    // The last block overlaps the one before it.
    if (length - at < kLanes) at = length - kLanes;
    const codec::Hits<Char> lanes = DifferentLanes<Fold>(left + at, right + at);
    if (lanes.None()) continue;
    if (const std::size_t place = MismatchAmong<Fold>(lanes, left, right, at); place != kNone) return place;
  }
  return length;
}

}  // namespace ravo::strings

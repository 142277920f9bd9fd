#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>

/// Simple mappings and the combining class of one code unit of UTF-16: two array reads, no allocation. Each
/// mapping gives one unit for one unit; what has no such mapping (U+00DF in upper case, surrogates) stays.
namespace ravo::DIUnicode {

/// What two units have in common that differ in case alone. "A" and "a" give "a".
[[nodiscard]] RAVO_INLINE_API char16_t CharToCaseFoldW(char16_t c) noexcept;
/// The upper case.
[[nodiscard]] RAVO_INLINE_API char16_t CharToUpperW(char16_t c) noexcept;
/// The lower case.
[[nodiscard]] RAVO_INLINE_API char16_t CharToLowerW(char16_t c) noexcept;
/// The form of a first letter: the upper case, but U+01C5 for U+01C4 to U+01C6 and the like.
[[nodiscard]] RAVO_INLINE_API char16_t CharToTitleW(char16_t c) noexcept;

/// The canonical combining class: 0 for what starts a sequence, otherwise the order of marks (230 for most
/// marks above a letter).
[[nodiscard]] RAVO_INLINE_API std::uint8_t CharCanonicalCombiningClassW(char16_t c) noexcept;

// Implementation. A look-up is shorter than a call, so it is inline; the tables stay in the library.

namespace detail {

/// The entry of `c`, or `fallback` where that is 0. Block 0 is the first one and holds zeros.
template <unsigned block_bits, class Entry, class Default>
[[nodiscard]] inline Default LookUp(const std::uint8_t* blocks, const Entry* entries, char16_t c,
                                    Default fallback) noexcept {
  constexpr unsigned size = 1U << block_bits;
  const Entry entry = entries[blocks[c >> block_bits] * size + (c & (size - 1))];
  return entry != 0 ? entry : fallback;
}

/// Where the two stages of a table are. Users see their addresses, not the arrays: a program that is not
/// position-independent would get a copy of the arrays, of the size they had when it was linked.
template <unsigned block_bits, class Entry>
struct TwoStages {
  const std::uint8_t* blocks;
  const Entry* entries;

  [[nodiscard]] Entry Of(char16_t c, Entry fallback) const noexcept {
    return LookUp<block_bits>(blocks, entries, c, fallback);
  }
};

extern RAVO_API const TwoStages<5, char16_t> kCaseFold;
extern RAVO_API const TwoStages<6, char16_t> kUpper;
extern RAVO_API const TwoStages<5, char16_t> kLower;
extern RAVO_API const TwoStages<6, char16_t> kTitle;
extern RAVO_API const TwoStages<5, std::uint8_t> kCombiningClass;

}  // namespace detail

RAVO_INLINE_API char16_t CharToCaseFoldW(char16_t c) noexcept { return detail::kCaseFold.Of(c, c); }
RAVO_INLINE_API char16_t CharToUpperW(char16_t c) noexcept { return detail::kUpper.Of(c, c); }
RAVO_INLINE_API char16_t CharToLowerW(char16_t c) noexcept { return detail::kLower.Of(c, c); }
RAVO_INLINE_API char16_t CharToTitleW(char16_t c) noexcept { return detail::kTitle.Of(c, c); }
RAVO_INLINE_API std::uint8_t CharCanonicalCombiningClassW(char16_t c) noexcept {
  return detail::kCombiningClass.Of(c, 0);
}

}  // namespace ravo::DIUnicode

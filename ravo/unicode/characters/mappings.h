#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>

/// Simple mappings and the combining class of one UTF-16 unit: two array reads, no allocation. A unit without
/// a mapping to a single unit (U+00DF to upper case, surrogates) maps to itself.
namespace ravo::DIUnicode {

/// Returns the case-folded form, equal for units that differ only in case: "a" for "A" and "a".
[[nodiscard]] RAVO_INLINE_API char16_t CharToCaseFoldW(char16_t c) noexcept;
/// Returns the upper case of `c`.
[[nodiscard]] RAVO_INLINE_API char16_t CharToUpperW(char16_t c) noexcept;
/// Returns the lower case of `c`.
[[nodiscard]] RAVO_INLINE_API char16_t CharToLowerW(char16_t c) noexcept;
/// Returns the title case of `c`: the upper case, but U+01C5 for U+01C4 to U+01C6 and the like.
[[nodiscard]] RAVO_INLINE_API char16_t CharToTitleW(char16_t c) noexcept;

/// Returns the canonical combining class: 0 for a starter, else the rank of a mark (230 for most marks above
/// a letter).
[[nodiscard]] RAVO_INLINE_API std::uint8_t CharCanonicalCombiningClassW(char16_t c) noexcept;

// Implementation: inline, because a lookup is shorter than a call. The tables are in the library.

namespace detail {

/// Returns the entry of `c`, or `fallback` if it is 0. Block 0 is all zeros.
template <unsigned block_bits, class Entry, class Default>
[[nodiscard]] inline Default LookUp(const std::uint8_t* blocks, const Entry* entries, char16_t c,
                                    Default fallback) noexcept {
  constexpr unsigned size = 1U << block_bits;
  const Entry entry = entries[blocks[c >> block_bits] * size + (c & (size - 1))];
  return entry != 0 ? entry : fallback;
}

/// Pointers to the two stages of a table. The arrays themselves are not exported: a copy relocation would put
/// an array of the size known at link time into a program that is not position-independent.
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

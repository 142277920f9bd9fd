#pragma once

#include <ravo/utils/strings/text_kind.h>

#include <array>

namespace ravo::strings {

/// The units that a character of a search text matches; unused elements repeat another one.
template <class Char>
using Variants = std::array<Char, 3>;

/// A character that folds to a unit past this one may have variants that `VariantsOf` does not know.
inline constexpr char16_t kLastWithKnownVariants = 0x17F;

/// Returns the unit that folds to `folded` and is neither it nor its upper case: long s, kelvin sign,
/// angstrom sign, capital sharp s. Returns `folded` if there is no such unit.
[[nodiscard]] constexpr char16_t FurtherVariant(char16_t folded) noexcept {
  switch (folded) {
    case u's':
      return 0x17F;
    case u'k':
      return 0x212A;
    case 0xE5:
      return 0x212B;
    case 0xDF:
      return 0x1E9E;
    default:
      return folded;
  }
}

/// Returns all units that fold like `c`, possibly with others.
[[nodiscard]] inline Variants<char16_t> VariantsOf(char16_t c) noexcept {
  const char16_t folded = Folded::Of(c);
  return {folded, DIUnicode::UpperUnit(folded), FurtherVariant(folded)};
}
[[nodiscard]] inline Variants<char> VariantsOf(char c) noexcept {
  const char folded = Folded::Of(c);
  const bool is_letter = folded >= 'a' && folded <= 'z';
  return {folded, is_letter ? static_cast<char>(folded - ('a' - 'A')) : folded, folded};
}

/// Returns whether `VariantsOf` knows all variants of `c`.
[[nodiscard]] inline bool AreVariantsKnown(char16_t c) noexcept {
  return Folded::Of(c) <= kLastWithKnownVariants;
}

}  // namespace ravo::strings

#pragma once

#include <ravo/utils/strings/text_kind.h>

#include <array>

namespace ravo::strings {

/// The units that a character of a search text may stand for; what is no further one repeats another.
template <class Char>
using Variants = std::array<Char, 3>;

/// Where a character folds to a unit beyond these, it may have variants that `VariantsOf` does not know.
inline constexpr char16_t kLastWithKnownVariants = 0x17F;

/// The one unit that folds to `folded` and is neither it nor its upper case: the long s, the signs of kelvin
/// and of ångström, the capital sharp s.
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

/// All units that fold like `c` does, perhaps with others among them.
[[nodiscard]] inline Variants<char16_t> VariantsOf(char16_t c) noexcept {
  const char16_t folded = Folded::Of(c);
  return {folded, DIUnicode::UpperUnit(folded), FurtherVariant(folded)};
}
[[nodiscard]] inline Variants<char> VariantsOf(char c) noexcept {
  const char folded = Folded::Of(c);
  const bool is_letter = folded >= 'a' && folded <= 'z';
  return {folded, is_letter ? static_cast<char>(folded - ('a' - 'A')) : folded, folded};
}

/// Whether `VariantsOf` knows them all.
[[nodiscard]] inline bool AreVariantsKnown(char16_t c) noexcept {
  return Folded::Of(c) <= kLastWithKnownVariants;
}

}  // namespace ravo::strings

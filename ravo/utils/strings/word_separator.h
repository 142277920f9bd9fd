#pragma once

#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/utils/strings/text_kind.h>

namespace ravo::strings {

/// Returns whether `c` separates words: in 8-bit text all of ASCII but letters, digits and "_"; other bytes
/// are letters.
[[nodiscard]] constexpr bool IsWordSeparator(char c) noexcept {
  const char lower = Folded::Of(c);
  return Code(c) < 0x80 && !(lower >= 'a' && lower <= 'z') && !(c >= '0' && c <= '9') && c != '_';
}
[[nodiscard]] inline bool IsWordSeparator(char16_t c) noexcept {
  return c < 0x80 ? IsWordSeparator(static_cast<char>(c)) : DIUnicode::IsCharWordSeparatorW(c);
}

}  // namespace ravo::strings

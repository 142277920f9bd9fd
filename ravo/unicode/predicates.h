#pragma once

#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/unicode_base.h>

namespace ravo::unicode {

/// Returns the caller's test, or white space if it is null.
[[nodiscard]] inline DIUnicode::CharPredicate OrWhiteSpace(DIUnicode::CharPredicate validate) noexcept {
  return validate != nullptr ? validate : DIUnicode::CharIsWhiteSpaceW;
}

}  // namespace ravo::unicode

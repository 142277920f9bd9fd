#pragma once

#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/unicode/unicode_base.h>

namespace ravo::unicode {

/// The test that a caller brought, or white space where he brought none.
[[nodiscard]] inline DIUnicode::CharPredicate OrWhiteSpace(DIUnicode::CharPredicate validate) noexcept {
  return validate != nullptr ? validate : DIUnicode::CharIsWhiteSpaceW;
}

}  // namespace ravo::unicode

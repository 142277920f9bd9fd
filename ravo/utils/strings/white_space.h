#pragma once

#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/utils/strings/text_kind.h>

namespace ravo::strings {

/// White space of a text that names no characters of its own: bytes 0 to 32, or the property of Unicode.
[[nodiscard]] inline bool IsWhiteSpace(char c) noexcept { return Code(c) <= 0x20; }
[[nodiscard]] inline bool IsWhiteSpace(char16_t c) noexcept {
  return c < 0x80 ? c == u' ' || (c >= u'\t' && c <= u'\r') : DIUnicode::CharIsWhiteSpaceW(c);
}

/// A test for white space that can be handed on.
struct WhiteSpaceTest {
  template <class Char>
  [[nodiscard]] bool operator()(Char c) const noexcept {
    return IsWhiteSpace(c);
  }
};

/// A test for one of several characters.
template <class Char>
[[nodiscard]] auto IsOneOf(View<Char> chars) noexcept {
  return [chars](Char c) { return chars.find(c) != View<Char>::npos; };
}

}  // namespace ravo::strings

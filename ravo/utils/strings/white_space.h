#pragma once

#include <ravo/unicode/characters/character_kinds.h>
#include <ravo/utils/strings/text_kind.h>

namespace ravo::strings {

/// Returns whether `c` is white space: bytes 0 to 32, or the Unicode property.
[[nodiscard]] inline bool IsWhiteSpace(char c) noexcept { return Code(c) <= 0x20; }
[[nodiscard]] inline bool IsWhiteSpace(char16_t c) noexcept {
  return c < 0x80 ? c == u' ' || (c >= u'\t' && c <= u'\r') : DIUnicode::CharIsWhiteSpaceW(c);
}

/// A test for white space as a function object.
struct WhiteSpaceTest {
  template <class Char>
  [[nodiscard]] bool operator()(Char c) const noexcept {
    return IsWhiteSpace(c);
  }
};

/// Returns a test for any of several characters.
template <class Char>
[[nodiscard]] auto IsOneOf(View<Char> chars) noexcept {
  return [chars](Char c) { return chars.find(c) != View<Char>::npos; };
}

}  // namespace ravo::strings

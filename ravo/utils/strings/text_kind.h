#pragma once

#include <ravo/unicode/characters/mapping_tables.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

/// What the families of string functions are made of: one template each, over the type of characters and the
/// way in which they are compared.
namespace ravo::strings {

template <class Char>
using View = std::basic_string_view<Char>;
template <class Char>
using String = std::basic_string<Char>;

inline constexpr std::size_t kNone = static_cast<std::size_t>(-1);

/// A buffer as a view; a null pointer is an empty one.
template <class Char>
[[nodiscard]] constexpr View<Char> Buffer(const Char* buffer, std::size_t length) noexcept {
  return buffer ? View<Char>(buffer, length) : View<Char>();
}

/// The code of a character, 0 to 255 or 0 to 65535.
[[nodiscard]] constexpr unsigned Code(char c) noexcept { return static_cast<unsigned char>(c); }
[[nodiscard]] constexpr unsigned Code(char16_t c) noexcept { return c; }

/// Characters are compared as they are.
struct Exact {
  static constexpr bool kIsExact = true;
  template <class Char>
  [[nodiscard]] static constexpr Char Of(Char c) noexcept {
    return c;
  }
};

/// Case does not count: the letters of ASCII in bytes, every case folding of one unit for one in UTF-16.
struct Folded {
  static constexpr bool kIsExact = false;
  [[nodiscard]] static constexpr char Of(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
  }
  [[nodiscard]] static char16_t Of(char16_t c) noexcept { return DIUnicode::FoldedUnit(c); }
};

template <class Fold, class Char>
[[nodiscard]] bool SameChar(Char left, Char right) noexcept {
  return left == right || (!Fold::kIsExact && Fold::Of(left) == Fold::Of(right));
}

/// Whether two texts of one length are the same.
template <class Fold, class Char>
[[nodiscard]] bool SameUnits(const Char* left, const Char* right, std::size_t length) noexcept {
  // What is long is worth a call; for UTF-16, the standard library's comparison goes one by one.
  if (Fold::kIsExact && length > 16) return std::memcmp(left, right, length * sizeof(Char)) == 0;
  for (std::size_t i = 0; i < length; ++i) {
    if (!SameChar<Fold>(left[i], right[i])) return false;
  }
  return true;
}

/// The 0-based place of a 1-based position; position 0 counts as the first.
[[nodiscard]] constexpr std::size_t Place(std::size_t position) noexcept {
  return position == 0 ? 0 : position - 1;
}

/// The 1-based position of a 0-based place, 0 for none.
[[nodiscard]] constexpr std::size_t Position(std::size_t place) noexcept { return place + 1; }

static_assert(Position(kNone) == 0);

}  // namespace ravo::strings

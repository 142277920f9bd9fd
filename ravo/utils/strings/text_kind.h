// String and buffer functions for two kinds of text: 8-bit and UTF-16.
//
// A family is one template in a .cpp file, over the type of characters and over `Exact` or `Folded`; its
// exported members are thin wrappers in the header of the same stem. Positions are 1-based in the headers and
// 0-based inside: `Place` and `Position` convert. docs/strings.md lists the families. kernels.h chooses the
// vector kernels of this processor, and the plain loops define their results.
//
// Start here, then read search.h and find.h. Only narrow.h asks the system, for its 8-bit code page.
#pragma once

#include <ravo/unicode/characters/mapping_tables.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

/// The building blocks of the string families: each family is one template, over the type of characters and
/// the way to compare them.
namespace ravo::strings {

template <class Char>
using View = std::basic_string_view<Char>;
template <class Char>
using String = std::basic_string<Char>;

inline constexpr std::size_t kNone = static_cast<std::size_t>(-1);

/// Returns a view of a buffer; empty for a null pointer.
template <class Char>
[[nodiscard]] constexpr View<Char> Buffer(const Char* buffer, std::size_t length) noexcept {
  return buffer ? View<Char>(buffer, length) : View<Char>();
}

/// Returns the code of a character, 0 to 255 or 0 to 65535.
[[nodiscard]] constexpr unsigned Code(char c) noexcept { return static_cast<unsigned char>(c); }
[[nodiscard]] constexpr unsigned Code(char16_t c) noexcept { return c; }

/// Compares characters exactly.
struct Exact {
  static constexpr bool kIsExact = true;
  template <class Char>
  [[nodiscard]] static constexpr Char Of(Char c) noexcept {
    return c;
  }
};

/// Compares characters ignoring case: ASCII letters in 8-bit text, every one-to-one case folding of UTF-16.
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

/// Returns whether two texts of equal length are equal.
template <class Fold, class Char>
[[nodiscard]] bool SameUnits(const Char* left, const Char* right, std::size_t length) noexcept {
  // A long text is worth a call; for UTF-16 the standard library compares unit by unit.
  if (Fold::kIsExact && length > 16) return std::memcmp(left, right, length * sizeof(Char)) == 0;
  for (std::size_t i = 0; i < length; ++i) {
    if (!SameChar<Fold>(left[i], right[i])) return false;
  }
  return true;
}

/// Returns the 0-based index of a 1-based position; position 0 counts as 1.
[[nodiscard]] constexpr std::size_t Place(std::size_t position) noexcept {
  return position == 0 ? 0 : position - 1;
}

/// Returns the 1-based position of a 0-based index, 0 for `kNone`.
[[nodiscard]] constexpr std::size_t Position(std::size_t place) noexcept { return place + 1; }

static_assert(Position(kNone) == 0);

}  // namespace ravo::strings

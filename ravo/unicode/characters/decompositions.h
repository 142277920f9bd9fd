#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <string>

/// Full decompositions of one UTF-16 unit.
namespace ravo::DIUnicode {

/// A view of UTF-16 units in the constant data of the library, or null.
class CharSequence {
 public:
  constexpr CharSequence() noexcept = default;
  /// `bytes` holds the number of units, then the units in little-endian order.
  constexpr explicit CharSequence(const std::uint8_t* bytes) noexcept : bytes_(bytes) {}

  /// Returns whether there is a sequence.
  [[nodiscard]] constexpr explicit operator bool() const noexcept { return bytes_ != nullptr; }
  /// Returns the number of units; 0 for null.
  [[nodiscard]] constexpr std::size_t size() const noexcept { return bytes_ ? bytes_[0] : 0; }
  /// Returns the unit at 0-based `index`, which must be less than `size()`.
  [[nodiscard]] constexpr char16_t operator[](std::size_t index) const noexcept {
    return static_cast<char16_t>(bytes_[1 + 2 * index] | bytes_[2 + 2 * index] << 8);
  }
  /// Returns the units as text; empty for null.
  [[nodiscard]] RAVO_API std::u16string Text() const;

 private:
  const std::uint8_t* bytes_ = nullptr;
};

/// Returns the full canonical decomposition, with marks in canonical order: U+0041 U+0300 for U+00C0. Null if
/// the unit has none, and for Hangul syllables.
///
/// Code points past U+FFFF, in seven compatibility ideographs, are surrogate pairs.
[[nodiscard]] RAVO_API CharSequence CharDecomposeCanonicalW(char16_t c) noexcept;

/// Returns the full compatibility decomposition: U+0066 U+0069 for U+FB01. It is the canonical one if there
/// is no other.
[[nodiscard]] RAVO_API CharSequence CharDecomposeCompatibleW(char16_t c) noexcept;

/// Returns the canonical decomposition as text; empty if the unit has none.
[[nodiscard]] RAVO_API std::u16string CharDecomposeCanonicalStrW(char16_t c);
/// Returns the compatibility decomposition as text; empty if the unit has none.
[[nodiscard]] RAVO_API std::u16string CharDecomposeCompatibleStrW(char16_t c);

/// Returns the two or three conjoining jamo of a Hangul syllable (U+AC00 to U+D7A3), computed; empty for any
/// other unit.
[[nodiscard]] RAVO_API std::u16string CharDecomposeHangulW(char16_t c);

}  // namespace ravo::DIUnicode

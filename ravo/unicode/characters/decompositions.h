#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <cstdint>
#include <string>

/// Full decompositions of one code unit of UTF-16.
namespace ravo::DIUnicode {

/// A sequence of code units in the constant data of the library, or none. Copies refer to the same data; it
/// lives as long as the library.
class CharSequence {
 public:
  constexpr CharSequence() noexcept = default;
  /// `bytes`: the number of code units, then the units in little-endian order.
  constexpr explicit CharSequence(const std::uint8_t* bytes) noexcept : bytes_(bytes) {}

  /// False for none.
  [[nodiscard]] constexpr explicit operator bool() const noexcept { return bytes_ != nullptr; }
  /// The number of code units; 0 for none.
  [[nodiscard]] constexpr std::size_t size() const noexcept { return bytes_ ? bytes_[0] : 0; }
  /// The unit at a 0-based index below `size()`.
  [[nodiscard]] constexpr char16_t operator[](std::size_t index) const noexcept {
    return static_cast<char16_t>(bytes_[1 + 2 * index] | bytes_[2 + 2 * index] << 8);
  }
  /// The units as text; empty for none.
  [[nodiscard]] RAVO_API std::u16string Text() const;

 private:
  const std::uint8_t* bytes_ = nullptr;
};

/// The full canonical decomposition, marks in canonical order: U+0041 U+0300 for U+00C0. None if the
/// character is its own, and for syllables of Hangul. Characters outside the plane of 65,536 units (in
/// seven compatibility ideographs) come as surrogate pairs.
[[nodiscard]] RAVO_API CharSequence CharDecomposeCanonicalW(char16_t c) noexcept;

/// The full compatibility decomposition: U+0066 U+0069 for U+FB01. The canonical one where that is no other.
[[nodiscard]] RAVO_API CharSequence CharDecomposeCompatibleW(char16_t c) noexcept;

/// The canonical decomposition as text; empty for none.
[[nodiscard]] RAVO_API std::u16string CharDecomposeCanonicalStrW(char16_t c);
/// The compatibility decomposition as text; empty for none.
[[nodiscard]] RAVO_API std::u16string CharDecomposeCompatibleStrW(char16_t c);

/// The two or three conjoining letters of a syllable of Hangul (U+AC00 to U+D7A3), computed; empty for any
/// other unit.
[[nodiscard]] RAVO_API std::u16string CharDecomposeHangulW(char16_t c);

}  // namespace ravo::DIUnicode

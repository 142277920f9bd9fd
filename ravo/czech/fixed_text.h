#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo::czech {

/// An ASCII text of at most `capacity` characters that owns no memory elsewhere.
template <std::size_t capacity>
struct FixedText {
  static_assert(capacity < 256);
  std::array<char, capacity> characters{};  ///< zeros past the end
  std::uint8_t size = 0;                    ///< how many characters there are

  /// A view of this object's characters: valid while the object is.
  [[nodiscard]] constexpr std::string_view View() const noexcept { return {characters.data(), size}; }
  /// Appends one character. Precondition: there is room.
  constexpr void Append(char character) noexcept { characters[size++] = character; }
  /// Appends a text. Precondition: there is room.
  constexpr void Append(std::string_view text) noexcept {
    char* const end = characters.data() + size;
    for (std::size_t i = 0; i < text.size(); ++i) end[i] = text[i];
    size = static_cast<std::uint8_t>(size + text.size());
  }
  /// Appends `number` in decimal, padded with zeros to at least `digits`. Precondition: there is room.
  constexpr void AppendNumber(std::uint64_t number, int digits) noexcept {
    std::array<char, 20> reversed{};
    int count = 0;
    for (; number != 0 || count < digits; number /= 10)
      reversed[static_cast<std::size_t>(count++)] = static_cast<char>('0' + number % 10);
    char* const end = characters.data() + size;
    for (int i = 0; i < count; ++i) end[i] = reversed[static_cast<std::size_t>(count - 1 - i)];
    size = static_cast<std::uint8_t>(size + count);
  }
  friend constexpr bool operator==(const FixedText&, const FixedText&) noexcept = default;
};

/// Returns `text` as a text of fixed capacity. Precondition: it is not longer than that.
template <std::size_t capacity>
[[nodiscard]] constexpr FixedText<capacity> Fixed(std::string_view text) noexcept {
  FixedText<capacity> result;
  result.Append(text);
  return result;
}

/// Returns `text` with room of another size. Precondition: it is not longer than that.
template <std::size_t capacity, std::size_t other>
[[nodiscard]] constexpr FixedText<capacity> Resized(const FixedText<other>& text) noexcept {
  FixedText<capacity> result;
  // As much as both have, zeros too: a copy of known length is a few instructions.
  std::copy_n(text.characters.data(), std::min(capacity, other), result.characters.data());
  result.size = text.size;
  return result;
}

}  // namespace ravo::czech

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ravo::czech {

/// An ASCII text of at most `capacity` characters that owns no memory elsewhere.
template <std::size_t capacity>
struct alignas(8) FixedText {
  static_assert(capacity < 256);
  /// The room, in whole words: copies are a few instructions that the processor can chain.
  static constexpr std::size_t kRoom = (capacity + 7) / 8 * 8;
  std::array<char, kRoom> characters{};  ///< zeros past the end
  std::uint8_t size = 0;                 ///< how many characters there are

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
  /// Appends `number`, below ten thousand million, in decimal, padded with zeros to at least `digits`, 1
  /// to 10. Precondition: there is room.
  constexpr void AppendNumber(std::uint64_t number, int digits) noexcept {
    int count = digits;
    for (std::uint64_t power = PowerOfTen(digits); number >= power && count < kMostDigits; power *= 10)
      ++count;
    char* const begin = characters.data() + size;
    // In halves of five digits: 32 bits divide faster, and neither half waits for the other.
    auto low = static_cast<std::uint32_t>(number % kHalf);
    auto high = static_cast<std::uint32_t>(number / kHalf);
    int at = count;
    for (; at > std::max(count - 5, 0); low /= 10) begin[--at] = static_cast<char>('0' + low % 10);
    for (; at > 0; high /= 10) begin[--at] = static_cast<char>('0' + high % 10);
    size = static_cast<std::uint8_t>(size + count);
  }
  friend constexpr bool operator==(const FixedText&, const FixedText&) noexcept = default;

 private:
  static constexpr std::uint64_t kHalf = 100'000;
  static constexpr int kMostDigits = 10;
  static constexpr std::uint64_t PowerOfTen(int exponent) noexcept {
    std::uint64_t power = 1;
    for (; exponent > 0; --exponent) power *= 10;
    return power;
  }
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
  std::copy_n(text.characters.data(), std::min(result.kRoom, text.kRoom), result.characters.data());
  result.size = text.size;
  return result;
}

}  // namespace ravo::czech

#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

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
    int count = std::max(digits, DigitCount(number));
    if (count > kWordDigits) {
      const auto first = static_cast<std::uint32_t>(number / kPowersOfTen[kWordDigits]);
      if (count > kWordDigits + 1) Append(static_cast<char>('0' + first / 10));
      Append(static_cast<char>('0' + first % 10));
      number %= kPowersOfTen[kWordDigits];
      count = kWordDigits;
    }
    AppendWord(EightDigits(static_cast<std::uint32_t>(number)) >> 8 * (kWordDigits - count), count);
  }
  friend constexpr bool operator==(const FixedText&, const FixedText&) noexcept = default;

 private:
  static constexpr int kWordDigits = 8;
  static constexpr auto kPowersOfTen = [] {
    std::array<std::uint64_t, 11> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t& entry : powers) entry = std::exchange(power, power * 10);
    return powers;
  }();

  // 1233 / 4096 is the logarithm of 2, so the estimate is the count or one less.
  static constexpr int DigitCount(std::uint64_t number) noexcept {
    const int estimate = static_cast<int>(std::bit_width(number | 1)) * 1233 >> 12;
    return estimate + (number >= kPowersOfTen[static_cast<std::size_t>(estimate)] ? 1 : 0);
  }

  // Eight characters, the first in the lowest byte. Halves, quarters and eighths of the word are divided at
  // once.
  static constexpr std::uint64_t EightDigits(std::uint32_t number) noexcept {
    const std::uint64_t fours = number / 10'000 | std::uint64_t{number % 10'000} << 32;
    const std::uint64_t hundreds = (fours * 10486 >> 20) & 0x0000'007F'0000'007F;
    const std::uint64_t pairs = hundreds | (fours - 100 * hundreds) << 16;
    const std::uint64_t tens = (pairs * 103 >> 10) & 0x000F'000F'000F'000F;
    return (tens | (pairs - 10 * tens) << 8) + 0x3030'3030'3030'3030;
  }

  // Appends the lowest bytes of a word, the others of which are zero. A whole word is one instruction.
  constexpr void AppendWord(std::uint64_t word, int count) noexcept {
    char* const end = characters.data() + size;
    const std::size_t stored = kRoom - size < 8 ? static_cast<std::size_t>(count) : 8;
    for (std::size_t i = 0; i < stored; ++i) end[i] = static_cast<char>(word >> 8 * i & 0xFF);
    size = static_cast<std::uint8_t>(size + count);
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

#pragma once

#include <ravo/codec/kernels/run.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

/// Tables of single-byte encodings: 256 characters, and the reverse table, built at compile time.
namespace ravo::codec {

using ByteTable = std::array<char16_t, 256>;

/// The bytes of a table that are variants: a character in another position or shape.
template <const ByteTable& table>
inline constexpr std::array<std::uint8_t, 0> kVariants{};

/// A table from characters to bytes. The first page is empty and serves all pages without characters, the
/// second has the characters below U+0100, the third those of the script. If several bytes decode to one
/// character, it maps to the lowest one that is not a variant.
struct ReverseTable {
  const std::uint16_t* page_of;  ///< the start of its page, by the upper byte of the character
  const std::uint8_t* pages;     ///< 256 bytes each; 0 means none, except for U+0000
  std::uint8_t script;           ///< the upper byte of most other characters; 0 if there are none

  /// Returns the byte of `ch`; 0 if it has none. U+0000 has the byte 0 in every table.
  [[nodiscard]] constexpr std::uint8_t operator[](char16_t ch) const noexcept {
    return pages[page_of[ch >> 8] + (ch & 0xFFU)];
  }
};

template <const ByteTable& table>
class Reversed {
 public:
  static constexpr ReverseTable Table() noexcept {
    return {kStages.page_of.data(), kStages.pages.data(), Script()};
  }

 private:
  // Untested: runs at compile time only.
  static constexpr std::size_t CountPages() {
    std::array<bool, 256> used{};
    for (const char16_t ch : table) used[ch >> 8] = used[ch >> 8] || ch != kReplacement;
    return static_cast<std::size_t>(std::count(used.begin(), used.end(), true));
  }

  static constexpr std::uint8_t Script() {
    std::array<std::uint8_t, 256> counts{};
    for (const char16_t ch : table) {
      if (ch >= 0x100 && ch != kReplacement) ++counts[ch >> 8];
    }
    return static_cast<std::uint8_t>(std::max_element(counts.begin(), counts.end()) - counts.begin());
  }

  static constexpr bool IsVariant(std::size_t byte) {
    return std::find(kVariants<table>.begin(), kVariants<table>.end(), byte) != kVariants<table>.end();
  }

  // All bytes, the variants last.
  static constexpr std::array<std::uint8_t, 256> InOrder() {
    std::array<std::uint8_t, 256> bytes{};
    std::size_t count = 0;
    for (const bool variant : {false, true}) {
      for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
        if (IsVariant(byte) == variant) bytes[count++] = static_cast<std::uint8_t>(byte);
      }
    }
    return bytes;
  }

  struct Stages {
    std::array<std::uint16_t, 256> page_of{};
    std::array<std::uint8_t, 256 * (CountPages() + 1)> pages{};
  };

  // Untested: runs at compile time only.
  static constexpr Stages Make() {
    Stages stages;
    stages.page_of[0] = 256;
    if (Script() != 0) stages.page_of[Script()] = 512;
    std::uint16_t last = Script() != 0 ? 512 : 256;
    for (const std::uint8_t byte : InOrder()) {
      const char16_t ch = table[byte];
      if (ch == kReplacement) continue;
      std::uint16_t& page = stages.page_of[ch >> 8];
      if (page == 0) page = last = static_cast<std::uint16_t>(last + 256);
      std::uint8_t& entry = stages.pages[page + (ch & 0xFFU)];
      if (entry == 0) entry = byte;
    }
    return stages;
  }

  static constexpr Stages kStages = Make();
};

/// Returns whether the bytes below 80 are those of ASCII.
constexpr bool HasAscii(const ByteTable& table) noexcept {
  for (std::size_t byte = 0; byte < 0x80; ++byte) {
    if (table[byte] != byte) return false;
  }
  return true;
}

/// Returns whether, in addition, no other byte is an ASCII character.
// Untested: runs at compile time only.
constexpr bool KeepsAscii(const ByteTable& table) noexcept {
  for (std::size_t byte = 0x80; byte < table.size(); ++byte) {
    if (table[byte] < 0x80) return false;
  }
  return HasAscii(table);
}

}  // namespace ravo::codec

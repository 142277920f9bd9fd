#pragma once

#include <array>
#include <cstdint>

namespace ravo::DIUtils {

/// The upper-case form of each byte in code page 1252, independent of the system's code page.
inline constexpr std::array<std::uint8_t, 256> ANSI_UPPER_CHAR_TABLE = [] {
  std::array<std::uint8_t, 256> table{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    const bool letter = (byte >= 0x61 && byte <= 0x7A) || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7);
    table[byte] = static_cast<std::uint8_t>(letter ? byte - 0x20 : byte);
  }
  table[0x9A] = 0x8A;
  table[0x9C] = 0x8C;
  table[0x9E] = 0x8E;
  table[0xFF] = 0x9F;
  return table;
}();

}  // namespace ravo::DIUtils

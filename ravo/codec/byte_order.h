#pragma once

#include <cstdint>

namespace ravo::codec {

struct BigEndian {
  template <class Source>
  static bool Next(Source& source, char16_t& unit) {
    std::uint8_t high = 0;
    std::uint8_t low = 0;
    if (!source.NextByte(high) || !source.NextByte(low)) return false;
    unit = static_cast<char16_t>(high << 8 | low);
    return true;
  }

  template <class Target>
  static void Write(Target& target, char16_t unit) {
    target.WriteByte(static_cast<std::uint8_t>(unit >> 8));
    target.WriteByte(static_cast<std::uint8_t>(unit & 0xFF));
  }

  /// Whether the upper half of a four-byte unit comes first.
  static constexpr bool kUpperHalfFirst = true;
};

struct LittleEndian {
  template <class Source>
  static bool Next(Source& source, char16_t& unit) {
    if (!BigEndian::Next(source, unit)) return false;
    unit = static_cast<char16_t>(unit << 8 | unit >> 8);
    return true;
  }

  template <class Target>
  static void Write(Target& target, char16_t unit) {
    BigEndian::Write(target, static_cast<char16_t>(unit << 8 | unit >> 8));
  }

  static constexpr bool kUpperHalfFirst = false;
};

}  // namespace ravo::codec

#pragma once

#include <ravo/codec/byte_spans.h>

#include <cstdint>

namespace ravo::codec {

/// Returns the character of two bytes, 81 to FE and 40 to FE except 7F.
[[nodiscard]] char16_t Gb18030OfTwo(std::uint8_t lead, std::uint8_t trail) noexcept;
/// Returns the character of a four-byte sequence by its index in the encoding; U+FFFD if it has none or one
/// past U+FFFF.
[[nodiscard]] char16_t Gb18030OfFour(std::uint32_t number) noexcept;

/// GB 18030, read-only. A byte that does not continue a sequence begins the next character.
struct Gb18030 {
  template <class Source>
  static bool Decode(Source& source, char16_t& ch) {
    std::uint8_t lead = 0;
    if (!source.NextByte(lead)) return false;
    ch = lead < 0x80 ? char16_t{lead} : DecodeSequence(source, lead);
    return true;
  }

 private:
  static bool IsLead(std::uint8_t byte) { return byte >= 0x81 && byte <= 0xFE; }
  static bool IsTrail(std::uint8_t byte) { return byte >= 0x40 && byte <= 0xFE && byte != 0x7F; }
  static bool IsDigit(std::uint8_t byte) { return byte >= 0x30 && byte <= 0x39; }

  template <class Source, class Accept>
  static bool Take(Source& source, std::uint8_t& byte, Accept accept) {
    if (!source.PeekByte(byte) || !accept(byte)) return false;
    source.SkipByte();
    return true;
  }

  template <class Source>
  static char16_t DecodeSequence(Source& source, std::uint8_t lead) {
    std::uint8_t second = 0;
    if (!IsLead(lead)) return kReplacement;
    if (Take(source, second, IsTrail)) return Gb18030OfTwo(lead, second);
    std::uint8_t third = 0;
    std::uint8_t fourth = 0;
    if (!Take(source, second, IsDigit) || !Take(source, third, IsLead) || !Take(source, fourth, IsDigit)) {
      return kReplacement;
    }
    const std::uint32_t pair = (lead - 0x81U) * 10 + (second - 0x30U);
    return Gb18030OfFour((pair * 126 + (third - 0x81U)) * 10 + (fourth - 0x30U));
  }
};

}  // namespace ravo::codec

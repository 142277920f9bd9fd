#pragma once

#include <ravo/codec/byte_spans.h>
#include <ravo/codec/policies.h>

#include <array>
#include <cstdint>

namespace ravo::codec {

/// UTF-8 of single UTF-16 units, by one of the policies of policies.h.
template <class Policy>
struct Utf8Engine {
  static constexpr std::size_t kMostBytes = 3;

  template <class Source>
  static bool Decode(Source& source, char16_t& ch) {
    std::uint8_t lead = 0;
    if (!source.NextByte(lead)) return false;
    ch = lead < 0x80 ? char16_t{lead} : DecodeSequence(source, lead);
    return true;
  }

  template <class Target>
  static bool Encode(Target& target, char16_t ch) {
    if (ch < 0x80) {
      target.WriteByte(static_cast<std::uint8_t>(ch));
    } else if (ch < 0x800) {
      target.WriteByte(static_cast<std::uint8_t>(0xC0 | ch >> 6));
      target.WriteByte(Continuation(ch));
    } else {
      // Kept: a surrogate is written as three bytes, because the library has no code point past U+FFFF. Test:
      // WriteUtf8.SurrogatesAsThreeBytesEach
      target.WriteByte(static_cast<std::uint8_t>(0xE0 | ch >> 12));
      target.WriteByte(Continuation(static_cast<char16_t>(ch >> 6)));
      target.WriteByte(Continuation(ch));
    }
    return true;
  }

 private:
  static std::uint8_t Continuation(char16_t ch) { return static_cast<std::uint8_t>(0x80 | (ch & 0x3F)); }

  /// Returns the number of trailing bytes after a lead byte; 0 for any other byte.
  static int Continuations(std::uint8_t lead) {
    if (lead < 0xC0) return 0;
    if (lead < 0xE0) return 1;
    if (lead < 0xF0) return 2;
    if (lead < 0xF8) return 3;
    if (lead < 0xFC) return 4;
    return lead < 0xFE ? 5 : Policy::kTrailsOfLastLeads;
  }

  template <class Source>
  static char16_t DecodeSequence(Source& source, std::uint8_t lead) {
    // The least value of one and of two trailing bytes; longer sequences exceed a unit.
    static constexpr std::array<std::uint32_t, 3> kLeast = {0, 0x80, 0x800};
    const int count = Continuations(lead);
    std::uint32_t value = lead & (count == 1 ? 0x1F : 0x0F);
    for (int i = 0; i < count; ++i) {
      std::uint8_t byte = 0;
      if (!source.PeekByte(byte) || (byte & 0xC0) != 0x80) return kReplacement;
      source.SkipByte();
      value = value << 6 | (byte & 0x3F);
    }
    // Kept: a sequence of four to six bytes is read as one U+FFFD, because the library has no code point past
    // U+FFFF. Test: ReadUtf8.FourBytesAreOneReplacement
    const bool fits = count == 1 || count == 2;
    // Kept: a surrogate in UTF-8 is decoded as it is. Test: StrDecodeUtf8.SurrogatesAreTakenAsTheyAre
    return fits && value >= kLeast[static_cast<std::size_t>(count)] ? static_cast<char16_t>(value)
                                                                    : kReplacement;
  }
};

using Utf8 = Utf8Engine<Utf8OfEncodings>;

}  // namespace ravo::codec

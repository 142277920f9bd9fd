#pragma once

#include <ravo/codec/byte_spans.h>
#include <ravo/codec/kernels/single_byte_table.h>

#include <cstddef>
#include <cstdint>

/// The engine of single-byte encodings, over a table and its reverse.
namespace ravo::codec {

template <const ByteTable& table>
struct SingleByte {
  static_assert(table[0] == 0, "byte 0 must be U+0000: it tells a byte from none");
  static constexpr std::size_t kMostBytes = 1;

  template <class Source>
  static bool Decode(Source& source, char16_t& ch) {
    std::uint8_t byte = 0;
    if (!source.NextByte(byte)) return false;
    ch = table[byte];
    return true;
  }

  template <class Target>
  static bool Encode(Target& target, char16_t ch) {
    const std::uint8_t byte = Reversed<table>::Table()[ch];
    if (byte == 0 && ch != 0) return false;
    target.WriteByte(byte);
    return true;
  }
};

}  // namespace ravo::codec

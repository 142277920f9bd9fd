#pragma once

#include <ravo/codec/kernels/block.h>

/// Conversion of ASCII blocks between bytes and units.
namespace ravo::codec {

/// Widens `blocks` blocks of sixteen bytes. False, with nothing written, if a byte is not ASCII.
template <std::size_t blocks>
bool WidenAscii(const std::uint8_t* from, char16_t* to) {
  using Bytes = Block<std::uint8_t>;
  Bytes all;
  for (std::size_t at = 0; at < blocks * kBlockBytes; at += kBlockBytes) all = all | Bytes::Load(from + at);
  if (!all.AsHits().None()) return false;
  for (std::size_t at = 0; at < blocks * kBlockBytes; at += kBlockBytes) {
    const Bytes bytes = Bytes::Load(from + at);
    WidenedLow(bytes).Store(to + at);
    WidenedHigh(bytes).Store(to + at + kBlockBytes / 2);
  }
  return true;
}

/// Narrows `blocks` blocks of sixteen units. False, with nothing written, if one is not ASCII.
template <std::size_t blocks>
bool NarrowAscii(const char16_t* from, std::uint8_t* to) {
  using Units = Block<char16_t>;
  Units all;
  for (std::size_t at = 0; at < blocks * kBlockBytes; at += Units::kUnits) all = all | Units::Load(from + at);
  if (!AreAscii(all)) return false;
  for (std::size_t at = 0; at < blocks * kBlockBytes; at += kBlockBytes)
    Narrowed(Units::Load(from + at), Units::Load(from + at + Units::kUnits)).Store(to + at);
  return true;
}

/// Returns the number of units in whole blocks that fit both the source and the room.
constexpr std::size_t WholeBlocks(std::size_t source, std::size_t room, std::size_t block = 16) {
  return (source < room ? source : room) / block * block;
}

}  // namespace ravo::codec

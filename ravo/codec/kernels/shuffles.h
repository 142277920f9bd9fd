#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Tables of byte shuffles that move the kept bytes of a block to its front, indexed by eight bits of a
/// comparison.
namespace ravo::codec {

using Shuffle = std::array<std::uint8_t, 16>;
using Shuffles = std::array<Shuffle, 256>;

// Untested: runs at compile time only.
template <class Stays>
constexpr Shuffles MakeShuffles(Stays stays) {
  Shuffles shuffles{};
  for (unsigned bits = 0; bits < shuffles.size(); ++bits) {
    std::size_t to = 0;
    for (unsigned byte = 0; byte < 16; ++byte) {
      if (stays(bits, byte)) shuffles[bits][to++] = static_cast<std::uint8_t>(byte);
    }
  }
  return shuffles;
}

/// Keeps those of eight units whose bit is set.
inline constexpr Shuffles kUnitsThatStay =
    // Untested: runs at compile time only.
    MakeShuffles([](unsigned bits, unsigned byte) { return (bits >> (byte / 2) & 1) != 0; });

/// Keeps eight pairs of bytes, but only the first byte of those whose bit is set.
inline constexpr Shuffles kPairsOrFirst =
    // Untested: runs at compile time only.
    MakeShuffles([](unsigned bits, unsigned byte) { return byte % 2 == 0 || (bits >> (byte / 2) & 1) == 0; });

/// Keeps three bytes of each of four groups of four. It drops the second byte too if the group's lower bit is
/// set (ASCII), and the first unless the group's upper bit is set (three bytes).
inline constexpr Shuffles kEndsOfTriples = MakeShuffles([](unsigned bits, unsigned byte) {
  // Untested: runs at compile time only.
  const bool is_ascii = (bits >> (byte / 4) & 1) != 0;
  const bool is_long = (bits >> (4 + byte / 4) & 1) != 0;
  return byte % 4 == 2 || (byte % 4 == 1 && !is_ascii) || (byte % 4 == 0 && is_long);
});

}  // namespace ravo::codec

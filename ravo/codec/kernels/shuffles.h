#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// One table of byte shuffles for each job: which bytes of a block stay, by a number of eight bits that the
/// block's comparison gave. Those that stay move to the front.
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

/// Eight units: those stay whose bit is set.
inline constexpr Shuffles kUnitsThatStay =
    // Untested: runs at compile time only.
    MakeShuffles([](unsigned bits, unsigned byte) { return (bits >> (byte / 2) & 1) != 0; });

/// Eight pairs of bytes: of those whose bit is set, only the first byte stays.
inline constexpr Shuffles kPairsOrFirst =
    // Untested: runs at compile time only.
    MakeShuffles([](unsigned bits, unsigned byte) { return byte % 2 == 0 || (bits >> (byte / 2) & 1) == 0; });

/// Four groups of four bytes, of which the fourth goes. The second goes if the group's lower bit is set
/// (ASCII), the first unless its upper bit is set (three bytes).
inline constexpr Shuffles kEndsOfTriples = MakeShuffles([](unsigned bits, unsigned byte) {
  // Untested: runs at compile time only.
  const bool is_ascii = (bits >> (byte / 4) & 1) != 0;
  const bool is_long = (bits >> (4 + byte / 4) & 1) != 0;
  return byte % 4 == 2 || (byte % 4 == 1 && !is_ascii) || (byte % 4 == 0 && is_long);
});

}  // namespace ravo::codec

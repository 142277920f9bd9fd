#pragma once

#include <cstddef>
#include <cstdint>

/// Bob Jenkins' hash of 1996 over bytes and over UTF-16 units; a policy maps each byte or unit first.
namespace ravo::utils {

/// Bytes are hashed in blocks of this size.
inline constexpr std::size_t kLookup2Piece = 12;

inline constexpr auto AsItIs = [](std::uint8_t byte) { return byte; };

struct Lookup2State {
  std::uint32_t a = 0x9E3779B9;  // the golden ratio
  std::uint32_t b = 0x9E3779B9;
  std::uint32_t c = 0;

  constexpr void Mix() noexcept {
    a -= b, a -= c, a ^= c >> 13;
    b -= c, b -= a, b ^= a << 8;
    c -= a, c -= b, c ^= b >> 13;
    a -= b, a -= c, a ^= c >> 12;
    b -= c, b -= a, b ^= a << 16;
    c -= a, c -= b, c ^= b >> 5;
    a -= b, a -= c, a ^= c >> 3;
    b -= c, b -= a, b ^= a << 10;
    c -= a, c -= b, c ^= b >> 15;
  }

  /// `fold` maps a byte to a byte, here and below.
  template <class Fold>
  constexpr void AddPiece(const std::uint8_t* bytes, const Fold& fold) noexcept {
    const auto byte = [&](std::size_t at) { return std::uint32_t{fold(bytes[at])}; };
    const auto word = [&](std::size_t at) {
      return byte(at) | byte(at + 1) << 8 | byte(at + 2) << 16 | byte(at + 3) << 24;
    };
    a += word(0);
    b += word(4);
    c += word(8);
    Mix();
  }
};

/// Returns the hash: mixes in the `left` bytes after the last whole block, and the length of all bytes.
template <class Fold>
[[nodiscard]] constexpr std::uint32_t FinishedLookup2(Lookup2State state, const std::uint8_t* bytes,
                                                      std::size_t left, std::uint32_t count,
                                                      const Fold& fold) noexcept {
  state.c += count;
  for (std::size_t i = 0; i < left; ++i) {
    // The low byte of c belongs to the length.
    std::uint32_t& to = i < 4 ? state.a : i < 8 ? state.b : state.c;
    to += std::uint32_t{fold(bytes[i])} << 8 * (i < 8 ? i % 4 : i - 7);
  }
  state.Mix();
  return state.c;
}

template <class Fold>
[[nodiscard]] constexpr std::uint32_t Lookup2OfBytes(const std::uint8_t* bytes, std::size_t count,
                                                     std::uint32_t initial, const Fold& fold) noexcept {
  Lookup2State state{.c = initial};
  std::size_t left = count;
  for (; left >= kLookup2Piece; left -= kLookup2Piece, bytes += kLookup2Piece) state.AddPiece(bytes, fold);
  return FinishedLookup2(state, bytes, left, static_cast<std::uint32_t>(count), fold);
}

/// `fold` maps a unit to a unit.
template <class Fold>
[[nodiscard]] constexpr std::uint32_t Lookup2OfUnits(const char16_t* units, std::size_t count,
                                                     std::uint32_t initial, const Fold& fold) noexcept {
  const auto unit = [&fold](char16_t value) { return std::uint32_t{fold(value)}; };
  const auto pair = [&unit](const char16_t* at) { return unit(at[0]) | unit(at[1]) << 16; };
  Lookup2State state{.c = initial};
  std::size_t left = count;
  for (; left >= 6; left -= 6, units += 6) {
    state.a += pair(units);
    state.b += pair(units + 2);
    state.c += pair(units + 4);
    state.Mix();
  }
  state.c += static_cast<std::uint32_t>(count);
  // Kept: the third and fourth unit of the last piece do not count: "abcd" and "abXY" have the same hash.
  // Stored hashes depend on it. Test: HashBufIW.DropsThirdAndFourthUnitOfTheLastPiece
  if (left == 5) state.b += unit(units[4]) << 16;
  if (left >= 2) state.a += pair(units);
  if (left == 1) state.a += unit(units[0]);
  state.Mix();
  return state.c;
}

}  // namespace ravo::utils

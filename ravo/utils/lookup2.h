#pragma once

#include <cstddef>
#include <cstdint>

/// Bob Jenkins' hash of 1996 over bytes and over UTF-16 units, with what happens to each of them as a policy.
namespace ravo::utils {

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
};

/// `fold` maps a byte to a byte.
template <class Fold>
[[nodiscard]] constexpr std::uint32_t Lookup2OfBytes(const std::uint8_t* bytes, std::size_t count,
                                                     std::uint32_t initial, const Fold& fold) noexcept {
  const auto byte = [&fold](std::uint8_t value) { return std::uint32_t{fold(value)}; };
  const auto word = [&byte](const std::uint8_t* at) {
    return byte(at[0]) | byte(at[1]) << 8 | byte(at[2]) << 16 | byte(at[3]) << 24;
  };
  Lookup2State state{.c = initial};
  std::size_t left = count;
  for (; left >= 12; left -= 12, bytes += 12) {
    state.a += word(bytes);
    state.b += word(bytes + 4);
    state.c += word(bytes + 8);
    state.Mix();
  }
  state.c += static_cast<std::uint32_t>(count);
  for (std::size_t i = 0; i < left; ++i) {
    // The low byte of c belongs to the length.
    std::uint32_t& to = i < 4 ? state.a : i < 8 ? state.b : state.c;
    to += byte(bytes[i]) << 8 * (i < 8 ? i % 4 : i - 7);
  }
  state.Mix();
  return state.c;
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
  // Kept: third and fourth unit of the last piece left out, because stored hash values were made so
  if (left == 5) state.b += unit(units[4]) << 16;
  if (left >= 2) state.a += pair(units);
  if (left == 1) state.a += unit(units[0]);
  state.Mix();
  return state.c;
}

}  // namespace ravo::utils

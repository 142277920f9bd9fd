#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace ravo {

/// A text for structures of C, whose units are of another type than those of C++ literals; with its zero.
template <std::size_t size>
consteval std::array<std::uint16_t, size> Utf16Units(const char16_t (&text)[size]) {
  std::array<std::uint16_t, size> units{};
  std::ranges::copy(text, units.begin());
  return units;
}

}  // namespace ravo

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace ravo {

/// Returns a text with its terminating zero for C structures, whose code units have another type than those
/// of C++ literals.
template <std::size_t size>
consteval std::array<std::uint16_t, size> Utf16Units(const char16_t (&text)[size]) {
  std::array<std::uint16_t, size> units{};
  std::ranges::copy(text, units.begin());
  return units;
}

}  // namespace ravo

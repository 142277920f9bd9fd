#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The tables that the kernels without carry-less multiplication look up.
namespace ravo::utils {

template <std::size_t count>
using Crc32Slices = std::array<std::array<std::uint32_t, 256>, count>;

/// Table k carries a register over its lowest byte, which `first` + k more bytes follow.
// Untested: runs at compile time only.
template <std::size_t first, std::size_t count>
constexpr Crc32Slices<count> MakeCrc32Slices() {
  constexpr std::uint32_t polynomial = 0xEDB88320;
  Crc32Slices<first + count> tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1) != 0 ? polynomial : 0);
    tables[0][byte] = crc;
  }
  for (std::size_t slice = 1; slice < tables.size(); ++slice) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      const std::uint32_t before = tables[slice - 1][byte];
      tables[slice][byte] = (before >> 8) ^ tables[0][before & 0xFF];
    }
  }
  Crc32Slices<count> wanted{};
  for (std::size_t slice = 0; slice < count; ++slice) wanted[slice] = tables[first + slice];
  return wanted;
}

}  // namespace ravo::utils

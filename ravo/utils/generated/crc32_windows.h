#pragma once

// Written by tools/generate/crc32_windows.py; not to be edited by hand.

#include <array>
#include <cstddef>

/// Distances over which a byte of a text may be carried: taken out, and XORed to the byte at each of them
/// behind it, it leaves the text's CRC-32 what it was.
namespace ravo::utils {

/// For long texts.
inline constexpr std::array<std::size_t, 3> kCrc32LongWindow = {1927, 2181, 4018};

/// For texts of a few KiB, and what the long window leaves.
inline constexpr std::array<std::size_t, 4> kCrc32MiddleWindow = {281, 285, 344, 515};

/// For what the middle window leaves.
inline constexpr std::array<std::size_t, 6> kCrc32ShortWindow = {53, 57, 67, 108, 129, 137};

}  // namespace ravo::utils

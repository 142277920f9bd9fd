#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace ravo {

/// What a CRC-32 register holds before the first byte.
inline constexpr std::uint32_t kCrc32Start = 0xFFFFFFFF;

/// Carries the register of the CRC-32 of ISO-HDLC and IEEE 802.3 (reflected polynomial 0xEDB88320) over
/// `bytes`. A text may come in pieces; the register after one is where the next one starts.
[[nodiscard]] std::uint32_t UpdateCrc32(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// The checksum of `bytes`: the complement of the register behind the last one. 0 for none.
[[nodiscard]] inline std::uint32_t Crc32(std::span<const std::byte> bytes) noexcept {
  return ~UpdateCrc32(kCrc32Start, bytes);
}

}  // namespace ravo

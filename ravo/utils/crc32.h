#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace ravo {

/// The initial value of a CRC-32 register.
inline constexpr std::uint32_t kCrc32Start = 0xFFFFFFFF;

/// Returns the register of the CRC-32 of ISO-HDLC and IEEE 802.3 (reflected polynomial 0xEDB88320) after
/// `bytes`. Data may come in blocks: pass the register of one block to the next call.
[[nodiscard]] std::uint32_t UpdateCrc32(std::uint32_t crc, std::span<const std::byte> bytes) noexcept;

/// Returns the checksum of `bytes`, the complement of the register after the last byte. 0 for no bytes.
[[nodiscard]] inline std::uint32_t Crc32(std::span<const std::byte> bytes) noexcept {
  return ~UpdateCrc32(kCrc32Start, bytes);
}

}  // namespace ravo

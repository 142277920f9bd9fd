#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// Reads little-endian numbers from bytes of any alignment. The caller checks the bounds.
namespace ravo {

[[nodiscard]] constexpr std::uint16_t ReadLittle16(std::span<const std::byte> bytes,
                                                   std::size_t at) noexcept {
  return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[at]) |
                                    std::to_integer<unsigned>(bytes[at + 1]) << 8);
}

[[nodiscard]] constexpr std::uint32_t ReadLittle32(std::span<const std::byte> bytes,
                                                   std::size_t at) noexcept {
  return ReadLittle16(bytes, at) | std::uint32_t{ReadLittle16(bytes, at + 2)} << 16;
}

}  // namespace ravo

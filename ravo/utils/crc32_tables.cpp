#include <ravo/runtime/little_endian.h>
#include <ravo/utils/crc32_kernels.h>
#include <ravo/utils/crc32_slices.h>

namespace ravo::utils {
namespace {

constexpr std::size_t kSlices = 16;
constexpr auto kTables = MakeCrc32Slices<0, kSlices>();

// Carries a register of four bytes over those bytes and `behind` more.
std::uint32_t Slice(std::uint32_t four, std::size_t behind) {
  return kTables[behind + 3][four & 0xFF] ^ kTables[behind + 2][(four >> 8) & 0xFF] ^
         kTables[behind + 1][(four >> 16) & 0xFF] ^ kTables[behind][four >> 24];
}

}  // namespace

std::uint32_t UpdateCrc32Bytewise(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  for (const std::byte byte : bytes) {
    crc = (crc >> 8) ^ kTables[0][(crc ^ std::to_integer<std::uint32_t>(byte)) & 0xFF];
  }
  return crc;
}

std::uint32_t UpdateCrc32Sliced(std::uint32_t crc, std::span<const std::byte> bytes) noexcept {
  for (; bytes.size() >= kSlices; bytes = bytes.subspan(kSlices)) {
    // What does not wait for the register first.
    const std::uint32_t rest = Slice(ReadLittle32(bytes, 4), 8) ^ Slice(ReadLittle32(bytes, 8), 4) ^
                               Slice(ReadLittle32(bytes, 12), 0);
    crc = Slice(crc ^ ReadLittle32(bytes, 0), 12) ^ rest;
  }
  return UpdateCrc32Bytewise(crc, bytes);
}

}  // namespace ravo::utils

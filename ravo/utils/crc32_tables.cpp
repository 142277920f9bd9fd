#include <ravo/runtime/little_endian.h>
#include <ravo/utils/crc32_kernels.h>

#include <array>

namespace ravo::utils {
namespace {

constexpr std::uint32_t kPolynomial = 0xEDB88320;
constexpr std::size_t kSlices = 16;

using Tables = std::array<std::array<std::uint32_t, 256>, kSlices>;

// Table 0 carries the register over one byte; table k does so for a byte that k more bytes follow.
constexpr Tables MakeTables() {
  Tables tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1) != 0 ? kPolynomial : 0);
    tables[0][byte] = crc;
  }
  for (std::size_t slice = 1; slice < kSlices; ++slice) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      const std::uint32_t before = tables[slice - 1][byte];
      tables[slice][byte] = (before >> 8) ^ tables[0][before & 0xFF];
    }
  }
  return tables;
}

constexpr Tables kTables = MakeTables();

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

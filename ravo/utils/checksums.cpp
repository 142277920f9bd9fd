#include <ravo/utils/byte_count.h>
#include <ravo/utils/checksums.h>
#include <ravo/utils/crc32.h>

#include <bit>

// UTF-16 units are read in their memory layout.
static_assert(std::endian::native == std::endian::little);

namespace ravo::DIUtils {

std::uint32_t UpdateCrc32OfBuf(std::uint32_t crc, const void* bytes, std::size_t count) noexcept {
  return UpdateCrc32(crc, {static_cast<const std::byte*>(bytes), count});
}

std::uint32_t UpdateCrc32OfStrA(std::uint32_t crc, std::string_view text) noexcept {
  return UpdateCrc32OfBuf(crc, text.data(), text.size());
}

std::uint32_t UpdateCrc32OfStrW(std::uint32_t crc, std::u16string_view text) {
  return UpdateCrc32OfBuf(crc, text.data(), utils::ByteCountOfUnits(text.size()));
}

std::uint32_t Crc32OfBuf(const void* bytes, std::size_t count) noexcept {
  return ~UpdateCrc32OfBuf(kCrc32Start, bytes, count);
}

std::uint32_t Crc32OfStrA(std::string_view text) noexcept { return ~UpdateCrc32OfStrA(kCrc32Start, text); }

std::uint32_t Crc32OfStrW(std::u16string_view text) { return ~UpdateCrc32OfStrW(kCrc32Start, text); }

}  // namespace ravo::DIUtils

#include <ravo/common/text_checksum.h>
#include <ravo/runtime/checked.h>
#include <ravo/runtime/text.h>
#include <ravo/utils/crc32.h>

#include <span>

namespace ravo::RavoInterfaceCommon {

void CalcCRC32(std::string_view text, std::uint32_t& crc) {
  // Kept: a text over 65,535 bytes throws `RangeError`. Test: CalcCRC32.TakesAtMost65535Bytes
  const auto count = CheckedCast<std::uint16_t>(text.size());
  crc = Crc32(std::as_bytes(std::span(text.data(), count)));
}

std::string ExtractCRCCase(std::string_view text) {
  std::uint32_t crc = 0;
  CalcCRC32(text, crc);
  return ToUtf8(ToHex(crc, 8));
}

}  // namespace ravo::RavoInterfaceCommon

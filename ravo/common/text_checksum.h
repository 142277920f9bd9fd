#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// The CRC-32 of ISO-HDLC and IEEE 802.3 over 8-bit text.
namespace ravo::RavoInterfaceCommon {

/// The checksum of at most 65535 bytes, 0 for none. Raises `RangeError` for more and leaves `crc` as it was.
RAVO_API void CalcCRC32(std::string_view text, std::uint32_t& crc);

/// The same as eight upper-case hexadecimal digits: "CBF43926" for "123456789".
[[nodiscard]] RAVO_API std::string ExtractCRCCase(std::string_view text);

}  // namespace ravo::RavoInterfaceCommon

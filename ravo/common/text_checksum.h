#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

/// The CRC-32 of ISO-HDLC and IEEE 802.3 of 8-bit texts.
namespace ravo::RavoInterfaceCommon {

/// Sets `crc` to the checksum of `text`, 0 for an empty text. Throws `RangeError` for more than 65535 bytes
/// and leaves `crc` unchanged.
RAVO_API void CalcCRC32(std::string_view text, std::uint32_t& crc);

/// Returns the checksum of `text` as eight upper-case hexadecimal digits: "CBF43926" for "123456789". Throws
/// `RangeError` for more than 65535 bytes.
[[nodiscard]] RAVO_API std::string ExtractCRCCase(std::string_view text);

}  // namespace ravo::RavoInterfaceCommon

#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/variant.h>

#include <string>
#include <string_view>

/// The byte form of 8-bit texts and blobs in streams. An absent stream (null) is left alone and reads as
/// nothing. Checked reads and writes raise `StreamError` when fewer bytes move than asked.
namespace ravo::RavoInterfaceCommon {

/// Writes a string record at the stream's position: the length in bytes as a signed 32-bit little-endian
/// number, the bytes, one zero byte. `RangeError` for a text whose length leaves 32 bits.
RAVO_API void StringToStream(ByteStream* stream, std::string_view text);

/// Reads a string record at the stream's position and leaves the position behind its terminator, which is not
/// read. Where the record promises more bytes than the stream has, the text is as long as promised and zero
/// bytes stand for those that are missing, so a false record takes the memory that it promises, up to 2 GiB;
/// the position still moves one byte on from the end. `RangeError` for a negative length.
[[nodiscard]] RAVO_API std::string StringFromStream(ByteStream* stream);

/// Writes the bytes of a byte array and nothing else; an empty or null value writes nothing. `VariantError`
/// for any other value.
RAVO_API void VariantToStream(ByteStream* stream, const Variant& value);

/// The whole stream as a byte array, whatever its position was; null for an absent stream. `RangeError` for a
/// stream of 2 GiB and more.
[[nodiscard]] RAVO_API Variant VariantFromStream(ByteStream* stream);

}  // namespace ravo::RavoInterfaceCommon

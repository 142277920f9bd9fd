#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/variant.h>

#include <string>
#include <string_view>

/// The byte format of 8-bit texts and blobs in streams. A null stream is ignored and reads as empty. Reading
/// and writing throws `StreamError` if fewer bytes are transferred than asked for.
namespace ravo::RavoInterfaceCommon {

/// Writes a string record at the position of the stream: the length in bytes as a signed 32-bit little-endian
/// number, the bytes, one zero byte. Throws `RangeError` if the length does not fit 32 bits.
RAVO_API void StringToStream(ByteStream* stream, std::string_view text);

/// Returns the text of the string record at the position of the stream, and moves the position past its
/// terminator, which is not read.
///
/// Throws `RangeError` for a negative length. If the stream has fewer bytes than the record declares, the
/// missing ones are zeros: a malformed record allocates what it declares, up to 2 GiB. The position still
/// moves one byte past the end.
[[nodiscard]] RAVO_API std::string StringFromStream(ByteStream* stream);

/// Writes the bytes of a byte array, nothing else; an empty or null value writes nothing. Throws
/// `VariantError` for any other value.
RAVO_API void VariantToStream(ByteStream* stream, const Variant& value);

/// Returns the whole stream as a byte array, from its start; null if `stream` is null. Throws `RangeError` if
/// the stream has 2 GiB or more.
[[nodiscard]] RAVO_API Variant VariantFromStream(ByteStream* stream);

}  // namespace ravo::RavoInterfaceCommon

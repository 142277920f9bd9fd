#pragma once

#include <ravo/runtime/byte_stream.h>

#include <cstdint>
#include <string_view>

/// The fields of form_fields.h with names and values in bytes, which the machine's code page does not change.
namespace ravo::formout {

/// Writes what `Win1250ToPDFDocEncoding` does; the bytes are Windows-1250.
void WriteTextString(ByteStream& stream, std::string_view bytes);

/// Writes what `FillPDFField` does; with `as_unicode`, the bytes of the value are Windows-1250.
void WriteField(ByteStream& stream, std::string_view name, std::string_view value, bool as_unicode);

/// Writes what `FillPDFFieldAsInteger` does.
void WriteIntegerField(ByteStream& stream, std::string_view name, std::int32_t value);

}  // namespace ravo::formout

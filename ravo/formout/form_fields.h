#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string_view>

/// The fields of a PDF form, as the body of a forms data file (FDF): one call a field, on one stream. What
/// stands around the fields (header, brackets, trailer) is the caller's. All write at the stream's position
/// and leave it behind the last byte; `StreamError` where the stream takes fewer bytes.
///
/// 8-bit text is in the system's code page, Windows-1250 on the suite's systems; what that lacks has become
/// its replacement character.
namespace ravo::RavoFileCommon {

/// Writes a text as a PDF text string: the mark FE FF and UTF-16, high byte first. In č the byte 0D is
/// written as "\r": readers of a form would make a line feed of a bare one. Nothing else is escaped, so
/// parentheses, a backslash and a carriage return in the text act on the form as they do in any PDF string.
RAVO_API void Win1250ToPDFDocEncoding(ByteStream& stream, std::u16string_view text);

/// Writes a field with a text: as a PDF text string where `AsUnicode` is true, else as bytes of the system's
/// code page. Neither the name nor the value is escaped.
RAVO_API void FillPDFField(ByteStream& stream, std::u16string_view name, std::u16string_view value,
                           bool AsUnicode);

/// Writes a field with a number as a PDF name: the form of check boxes and choices whose states are numbers.
RAVO_API void FillPDFFieldAsInteger(ByteStream& stream, std::u16string_view name, std::int32_t value);

}  // namespace ravo::RavoFileCommon

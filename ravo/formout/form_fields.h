// Output for forms: the fields of a PDF form, and the values that statutory forms and XML exports take.
//
// form_fields.h writes fields as the body of a forms data file (FDF); form_values.h formats dates and flags.
// Start here. This room writes only the fields: the header, brackets and trailer of the file are the
// caller's. It reads no form and escapes nothing but the one byte described below.
#pragma once

#include <ravo/runtime/byte_stream.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string_view>

/// The fields of a PDF form, as the body of a forms data file (FDF), one call per field. The caller writes
/// the header, brackets and trailer around them. Each call writes at the position of the stream and leaves it
/// past the last byte; it throws `StreamError` if the stream takes fewer bytes.
///
/// 8-bit text is in the system's code page, Windows-1250 on the suite's systems; characters that it lacks
/// become its replacement character.
namespace ravo::RavoFileCommon {

/// Writes a text as a PDF text string: the byte-order mark FE FF and UTF-16, high byte first.
///
/// The byte 0D of č is written as "\r", because readers of PDF would change a bare one to a line feed.
/// Nothing else is escaped: parentheses, backslashes and carriage returns in the text keep their meaning in a
/// PDF string.
RAVO_API void Win1250ToPDFDocEncoding(ByteStream& stream, std::u16string_view text);

/// Writes a field with a text: as a PDF text string if `AsUnicode` is true, else as bytes of the system's
/// code page. Neither the name nor the value is escaped.
RAVO_API void FillPDFField(ByteStream& stream, std::u16string_view name, std::u16string_view value,
                           bool AsUnicode);

/// Writes a field with a number as a PDF name, the form of check boxes and choices whose states are numbers.
RAVO_API void FillPDFFieldAsInteger(ByteStream& stream, std::u16string_view name, std::int32_t value);

}  // namespace ravo::RavoFileCommon

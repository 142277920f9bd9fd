#pragma once

#include <ravo/codec/encoding.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>

namespace ravo::unicode {

/// Returns the encoding with these routines; null if they are not of this library.
[[nodiscard]] const codec::Encoding* EncodingOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept;
[[nodiscard]] const codec::Encoding* EncodingOf(const DIUnicode::TDIUnicodeWriteMethods& methods) noexcept;

}  // namespace ravo::unicode

#pragma once

#include <ravo/codec/encoding.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>

namespace ravo::unicode {

/// Returns the encoding whose routines those methods have; null if they are not of this library.
[[nodiscard]] const codec::Encoding* EncodingOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept;
[[nodiscard]] const codec::Encoding* EncodingOf(const DIUnicode::TDIUnicodeWriteMethods& methods) noexcept;

}  // namespace ravo::unicode

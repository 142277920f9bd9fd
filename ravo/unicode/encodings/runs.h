#pragma once

#include <ravo/codec/runs.h>
#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>

namespace ravo::unicode {

/// Returns the runs beside the routines of one character; null if an encoding has none or the routines are
/// not of this library.
[[nodiscard]] codec::DecodeRun DecodeRunOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept;
[[nodiscard]] codec::DecodeUntil DecodeUntilOf(const DIUnicode::TDIUnicodeReadMethods& methods) noexcept;
[[nodiscard]] codec::EncodeRun EncodeRunOf(const DIUnicode::TDIUnicodeWriteMethods& methods) noexcept;

}  // namespace ravo::unicode

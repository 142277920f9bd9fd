#pragma once

#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>

#include <cstddef>
#include <cstdint>
#include <span>

/// Whole runs of characters at once. They give what the routines of one character give, U+FFFD for what is
/// malformed included, and stop before whatever those have to decide: what the end of `bytes` cuts short,
/// what ends the data, and what an encoding lacks.
namespace ravo::DIUnicode {

/// How much of a run was done.
struct Run {
  std::size_t taken = 0;  ///< units of the source
  std::size_t made = 0;   ///< units of the result
};

/// Decodes characters from `bytes` into `text` while they are whole and there is room. Needs no state. May
/// write beyond what it made, within `text`. May stop at any character boundary, also at once.
using DecodeRun = Run (*)(std::span<const std::uint8_t> bytes, std::span<char16_t> text);

/// Encodes `text` into `bytes` while the encoding has the characters and there is room for its longest
/// one. May write beyond what it made, within `bytes`.
using EncodeRun = Run (*)(std::span<const char16_t> text, std::span<std::uint8_t> bytes);

/// The run beside the routines of one character; null where an encoding has none or the routines are not of
/// this library.
[[nodiscard]] DecodeRun DecodeRunOf(const TDIUnicodeReadMethods& methods) noexcept;
[[nodiscard]] EncodeRun EncodeRunOf(const TDIUnicodeWriteMethods& methods) noexcept;

}  // namespace ravo::DIUnicode

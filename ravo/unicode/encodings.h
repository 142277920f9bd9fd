#pragma once

#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/// The encodings of readers and writers, and the list of them.
///
/// Each encoding has exported constants `Read_<Name>` and `Write_<Name>` for `SetReadMethods` and
/// `SetWriteMethods`, and the routines in those constants: `Read_<Name>_ReadChar`, `Write_<Name>_WriteChar`,
/// and for UTF-7 those that create, flush and free its state. GB 18030 is read-only. `Write_UTF_7_ODC` writes
/// the optional direct characters of UTF-7 as they are.
///
/// Reading never throws: an unassigned byte or an unknown sequence gives U+FFFD, and a unit of two or four
/// bytes that is truncated by the end of the data ends the data. Writing returns false for a character that
/// the encoding lacks; every single-byte encoding lacks U+FFFD.
namespace ravo::DIUnicode {

#define RAVO_DECLARE_ReadOnly(name)                                \
  /** Makes a reader decode #name. */                              \
  extern RAVO_API const TDIUnicodeReadMethods Read_##name;         \
  /** Reads a character of #name; false at the end of all data. */ \
  RAVO_API bool Read_##name##_ReadChar(TDIUnicodeReader& reader, char16_t& ch);
#define RAVO_DECLARE_WriteOnly(name)                          \
  /** Makes a writer encode #name. */                         \
  extern RAVO_API const TDIUnicodeWriteMethods Write_##name;  \
  /** Writes a character in #name; false if it lacks that. */ \
  RAVO_API bool Write_##name##_WriteChar(TDIUnicodeWriter& writer, char16_t ch);
#define RAVO_DECLARE_Both(name) RAVO_DECLARE_ReadOnly(name) RAVO_DECLARE_WriteOnly(name)

#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  RAVO_DECLARE_##ways(name)
#include <ravo/codec/rows.inc>
#undef RAVO_ENCODING
#undef RAVO_DECLARE_Both
#undef RAVO_DECLARE_WriteOnly
#undef RAVO_DECLARE_ReadOnly

/// Creates the reader's UTF-7 state, a record of 12 bytes.
RAVO_API void Read_UTF_7_Init(TDIUnicodeReader& reader);
/// Frees the reader's UTF-7 state.
RAVO_API void Read_UTF_7_Finalize(TDIUnicodeReader& reader);
/// Creates the writer's UTF-7 state.
RAVO_API void Write_UTF_7_Init(TDIUnicodeWriter& writer);
/// Writes pending bits and leaves base 64.
RAVO_API void Write_UTF_7_Flush(TDIUnicodeWriter& writer);
/// Frees the writer's UTF-7 state.
RAVO_API void Write_UTF_7_Finalize(TDIUnicodeWriter& writer);

/// One encoding.
struct EncodingRow {
  std::string_view name;                ///< as exported, such as "Windows_1250"
  std::string_view label;               ///< the display name
  std::uint32_t code_page;              ///< Windows number; 0 if it has none
  std::string_view aliases;             ///< other names, separated by blanks
  std::string_view engine;              ///< "SingleByte", "Utf8", ...
  std::string_view notes;               ///< remarks; may be empty
  const TDIUnicodeReadMethods* read;    ///< null if it cannot be read
  const TDIUnicodeWriteMethods* write;  ///< null if it cannot be written
};

/// All encodings, in the order of their families.
[[nodiscard]] RAVO_API std::span<const EncodingRow> EncodingRows() noexcept;

/// Returns the encoding called `name`; null if it is unknown.
///
/// A name is an exported name, alias, code page number with or without "cp", or label, such as
/// "Windows_1250", "windows-1250", "CP1250", "1250" or "Windows-1250 (Central European)". Only ASCII letters
/// and digits count, without regard to case. Every label of the WHATWG Encoding Standard for an encoding in
/// this list is a name; "latin1", "ascii" and others that mean a larger encoding there find the encoding they
/// name.
[[nodiscard]] RAVO_API const EncodingRow* FindEncoding(std::string_view name) noexcept;

/// Returns the encoding with a Windows code page number; null if the number is unknown or 0.
[[nodiscard]] RAVO_API const EncodingRow* FindEncodingByCodePage(std::uint32_t code_page) noexcept;

/// Returns the bytes of a text that is only `ch`, with what UTF-7 needs around it. Empty if the encoding
/// lacks `ch` or cannot be written.
[[nodiscard]] RAVO_API std::vector<std::uint8_t> EncodedCharacter(const EncodingRow& encoding, char16_t ch);

}  // namespace ravo::DIUnicode

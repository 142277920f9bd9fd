#pragma once

#include <ravo/unicode/unicode_reader.h>
#include <ravo/unicode/unicode_writer.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/// The encodings that readers and writers take, and the list of them.
///
/// Each encoding has its exported constants `Read_<Name>` and `Write_<Name>` for `SetReadMethods` and
/// `SetWriteMethods`, and the routines that they hold: `Read_<Name>_ReadChar`, `Write_<Name>_WriteChar`, and
/// those of UTF-7 that make, flush and free its state. GB 18030 is read only. `Write_UTF_7_ODC` writes the
/// optional direct characters of UTF-7 as they are.
///
/// Reading never raises: a byte that an encoding does not assign and a sequence that it does not know give
/// U+FFFD, and a unit of two or four bytes that the data cut short ends the data. Writing answers false for a
/// character that the encoding lacks, and U+FFFD is one of those in every single-byte encoding.
namespace ravo::DIUnicode {

#define RAVO_DECLARE_ReadOnly(name)                                \
  /** Plugs #name into a reader. */                                \
  extern RAVO_API const TDIUnicodeReadMethods Read_##name;         \
  /** Reads a character of #name; false at the end of all data. */ \
  RAVO_API bool Read_##name##_ReadChar(TDIUnicodeReader& reader, char16_t& ch);
#define RAVO_DECLARE_WriteOnly(name)                             \
  /** Plugs #name into a writer. */                              \
  extern RAVO_API const TDIUnicodeWriteMethods Write_##name;     \
  /** Writes a character in #name; false where that lacks it. */ \
  RAVO_API bool Write_##name##_WriteChar(TDIUnicodeWriter& writer, char16_t ch);
#define RAVO_DECLARE_Both(name) RAVO_DECLARE_ReadOnly(name) RAVO_DECLARE_WriteOnly(name)

#define RAVO_ENCODING(name, label, code_page, aliases, engine, ways, table, sources, notes) \
  RAVO_DECLARE_##ways(name)
#include <ravo/codec/rows.inc>
#undef RAVO_ENCODING
#undef RAVO_DECLARE_Both
#undef RAVO_DECLARE_WriteOnly
#undef RAVO_DECLARE_ReadOnly

/// UTF-7 remembers between characters. `Init` makes a record of 12 bytes for it, `Flush` writes what is held
/// back and leaves base 64, `Finalize` frees the record.
RAVO_API void Read_UTF_7_Init(TDIUnicodeReader& reader);
/// Frees the record.
RAVO_API void Read_UTF_7_Finalize(TDIUnicodeReader& reader);
/// Makes the record of a writer.
RAVO_API void Write_UTF_7_Init(TDIUnicodeWriter& writer);
/// Writes what is held back and leaves base 64.
RAVO_API void Write_UTF_7_Flush(TDIUnicodeWriter& writer);
/// Frees the record.
RAVO_API void Write_UTF_7_Finalize(TDIUnicodeWriter& writer);

/// One encoding.
struct EncodingRow {
  std::string_view name;                ///< as exported, such as "Windows_1250"
  std::string_view label;               ///< for people
  std::uint32_t code_page;              ///< its number on Windows; 0 where it has none
  std::string_view aliases;             ///< other names, separated by blanks
  std::string_view engine;              ///< "SingleByte", "Utf8", ...
  std::string_view notes;               ///< what is worth knowing; may be empty
  const TDIUnicodeReadMethods* read;    ///< null where it is not read
  const TDIUnicodeWriteMethods* write;  ///< null where it is not written
};

/// All encodings, in the order of their families.
[[nodiscard]] RAVO_API std::span<const EncodingRow> EncodingRows() noexcept;

/// Returns the encoding of a name: an exported name, alias, code page number with or without "cp", or label,
/// such as "Windows_1250", "windows-1250", "CP1250", "1250" or "Windows-1250 (Central European)". Null if
/// it is unknown.
///
/// Case does not count, nor does anything but letters and digits of ASCII. Every label of the WHATWG's
/// Encoding Standard whose encoding is here is a name; "latin1", "ascii" and others that mean a larger
/// encoding there are the encoding that they name.
[[nodiscard]] RAVO_API const EncodingRow* FindEncoding(std::string_view name) noexcept;

/// Returns the encoding of a Windows code page number; null if it is unknown, and for 0.
[[nodiscard]] RAVO_API const EncodingRow* FindEncodingByCodePage(std::uint32_t code_page) noexcept;

/// The bytes that stand for `ch` alone in an encoding, with what UTF-7 needs around it; none where the
/// encoding lacks it or is not written.
[[nodiscard]] RAVO_API std::vector<std::uint8_t> EncodedCharacter(const EncodingRow& encoding, char16_t ch);

}  // namespace ravo::DIUnicode

#pragma once

#include "support/effort.h"
#include <ravo/unicode/encodings.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

/// Reading bytes and writing text, for the tests of encodings.
namespace ravo::test {

inline std::span<const std::uint8_t> AsBytes(std::string_view bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

/// Whether all characters are tried in an encoding: under sanitizers, in the first of each engine.
inline bool TriesAllCharacters(const DIUnicode::EncodingRow& row) {
  const auto& rows = DIUnicode::EncodingRows();
  const auto first =
      std::find_if(rows.begin(), rows.end(), [&](const auto& other) { return other.engine == row.engine; });
  return !kSanitized || first->name == row.name;
}

/// Returns every character up to the end of the data.
inline std::u16string ReadAll(DIUnicode::TDIUnicodeReader& reader) {
  std::u16string text;
  while (reader.ReadChar()) text += reader.Char();
  return text;
}

inline std::u16string Read(const DIUnicode::TDIUnicodeReadMethods& methods, std::string_view bytes) {
  DIUnicode::TDIUnicodeReader reader;
  reader.SetReadMethods(methods);
  reader.SetSourceBuffer(AsBytes(bytes));
  return ReadAll(reader);
}

inline std::string TextOf(std::span<const std::uint8_t> bytes) { return {bytes.begin(), bytes.end()}; }

/// Returns the bytes of a text after a flush; nothing if a character is refused.
inline std::optional<std::string> Write(const DIUnicode::TDIUnicodeWriteMethods& methods,
                                        std::u16string_view text) {
  DIUnicode::TDIUnicodeWriter writer;
  writer.SetWriteMethods(methods);
  for (const char16_t ch : text) {
    if (!writer.TryWriteCharW(ch)) return std::nullopt;
  }
  writer.FlushDataBuffer();
  return TextOf(writer.Data());
}

}  // namespace ravo::test

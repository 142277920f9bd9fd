#pragma once

#include "encoding_guess.h"
#include <ravo/DIUnicode.h>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

/// Returns the encoding of a table that starts with `sample`, which may end inside a character.
[[nodiscard]] EncodingGuess GuessTableEncoding(std::string_view sample);

/// Returns the length of the byte-order mark of UTF-8 at the start of `sample`, 0 otherwise.
[[nodiscard]] std::size_t MarkSize(std::string_view sample) noexcept;

/// The bytes of one encoding as text.
class TableText {
 public:
  /// Returns whether tables can be in this encoding: UTF-8, or one of one byte a character that contains
  /// ASCII.
  [[nodiscard]] static bool CanRead(const ravo::DIUnicode::EncodingRow& encoding);

  /// `encoding` is one that `CanRead`.
  explicit TableText(const ravo::DIUnicode::EncodingRow& encoding);

  [[nodiscard]] std::string_view Label() const noexcept { return label_; }

  /// Returns the index of the first byte of `text` from `from` on that is no part of a character, or the
  /// size.
  [[nodiscard]] std::size_t FirstWrong(std::string_view text, std::size_t from) const noexcept;

  /// Returns `bytes` in UTF-8; what is no part of a character becomes U+FFFD.
  [[nodiscard]] std::string Utf8(std::string_view bytes) const;

 private:
  std::string_view label_;
  bool is_utf8_;
  std::array<std::string, 128> upper_;  // the characters of the bytes from 0x80 on; empty otherwise
};

/// Whether all bytes are printable ASCII.
[[nodiscard]] bool IsPrintableAscii(std::string_view text) noexcept;

/// Appends `utf8` to `json` as the inside of a JSON string.
void AppendJson(std::string& json, std::string_view utf8);

}  // namespace tool

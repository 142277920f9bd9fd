#pragma once

#include <cstdint>
#include <string_view>

namespace ravo::codec {

/// The line and column of a character in a text. A carriage return, a line feed and a pair of both end a
/// line; the line feed of a pair has the column of its carriage return.
class Place {
 public:
  /// Returns the 1-based line.
  [[nodiscard]] std::uint64_t Line() const noexcept { return line_; }
  /// Returns the 1-based column; 0 before the first character.
  [[nodiscard]] std::uint64_t Column() const noexcept { return column_; }

  /// Advances to the last character of `text`, which follows the current one.
  void Advance(std::u16string_view text) noexcept;

 private:
  std::uint64_t line_ = 1;
  std::uint64_t column_ = 0;
  char16_t last_ = 0;
};

}  // namespace ravo::codec

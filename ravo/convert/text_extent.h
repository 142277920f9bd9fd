#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace ravo::convert {

/// The lines and characters of a piece of text; pieces add up to a text. A carriage return, a line feed, and
/// a pair of both end a line.
class TextExtent {
 public:
  TextExtent() = default;
  /// The extent of `text`, which is UTF-16: a pair of surrogates is one character.
  explicit TextExtent(std::u16string_view text);
  /// The same for a text whose bytes below 0x80 are ASCII, with the bytes that it was read from. Faster.
  TextExtent(std::u16string_view text, std::span<const std::uint8_t> bytes);

  TextExtent& operator+=(const TextExtent& next);

  /// Returns the 1-based line of the character after the text.
  [[nodiscard]] std::uint64_t Line() const { return breaks_ + 1; }
  /// Returns the 1-based column of the character after the text.
  [[nodiscard]] std::uint64_t Column() const { return column_ + 1; }

 private:
  TextExtent(std::u16string_view text, std::uint64_t breaks);

  std::uint64_t breaks_ = 0;
  // The characters after the last line break.
  std::uint64_t column_ = 0;
  bool is_empty_ = true;
  bool begins_with_feed_ = false;
  bool ends_with_return_ = false;
};

}  // namespace ravo::convert

#pragma once

#include <cstddef>
#include <string_view>

namespace ravo::document {

/// A line and a column in characters, both from 1. CR, LF and the pair of both end a line.
struct TextPlace {
  std::size_t line = 1;
  std::size_t column = 1;
};

/// Finds the places of bytes of a text in UTF-8, in one pass if they are asked for in ascending order.
class PlaceFinder {
 public:
  explicit PlaceFinder(std::string_view utf8) : text_(utf8) {}

  /// Starts over for a byte before the one asked for last.
  [[nodiscard]] TextPlace Find(std::size_t at);

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  TextPlace place_;
};

}  // namespace ravo::document

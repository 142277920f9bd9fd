#pragma once

#include <cstddef>
#include <string_view>

namespace ravo::convert {

/// A character at the start of a text in UTF-8, and how many bytes it takes: none if they are not UTF-8.
struct Utf8Character {
  char32_t code = 0;
  std::size_t size = 0;
};

/// Returns the first character of a text that is not empty.
[[nodiscard]] Utf8Character FirstCharacter(std::string_view utf8);

/// Returns where the first byte is that is not UTF-8; the text's size otherwise.
[[nodiscard]] std::size_t ValidUtf8Length(std::string_view text);

}  // namespace ravo::convert

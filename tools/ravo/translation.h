#pragma once

#include <string_view>

namespace tool {

/// An English text and its forms in another language: one, or one for each form of the plural.
struct Translation {
  std::string_view english;
  std::string_view forms[3];
};

/// Returns the row of a text in the compiled-in translation, or null.
[[nodiscard]] const Translation* CzechOf(std::string_view english);

}  // namespace tool

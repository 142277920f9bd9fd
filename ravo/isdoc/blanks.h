#pragma once

#include <algorithm>
#include <string_view>

namespace ravo::isdoc {

/// Returns `text` without the white space of XML at its ends.
[[nodiscard]] constexpr std::string_view Trimmed(std::string_view text) noexcept {
  constexpr std::string_view kBlanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

}  // namespace ravo::isdoc

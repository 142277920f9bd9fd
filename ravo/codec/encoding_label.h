#pragma once

#include <string_view>

namespace ravo::codec {

/// Returns the display name of an encoding without its explanation: "Windows-1250" of "Windows-1250 (Central
/// European)".
[[nodiscard]] constexpr std::string_view ShortLabel(std::string_view label) noexcept {
  return label.substr(0, label.find(" ("));
}

}  // namespace ravo::codec

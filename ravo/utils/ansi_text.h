#pragma once

#include <ravo/platform/machine.h>

#include <string>
#include <string_view>

/// Texts of the system's 8-bit code page and back, for the members of families that end in "A".
namespace ravo::utils {

[[nodiscard]] inline std::u16string Wide(std::string_view text) {
  return platform::CurrentMachine().FromCodePage(text);
}

[[nodiscard]] inline std::string Narrow(std::u16string_view text) {
  return platform::CurrentMachine().ToCodePage(text);
}

}  // namespace ravo::utils

#pragma once

#include <ravo/platform/code_pages.h>

#include <string>
#include <string_view>

namespace ravo::utils {

/// Returns the UTF-16 form of a text in the system's 8-bit code page, for members that end in "A".
/// `WStrToAStr` converts back.
[[nodiscard]] inline std::u16string Wide(std::string_view text) {
  return platform::CodePages().FromCodePage(text);
}

}  // namespace ravo::utils

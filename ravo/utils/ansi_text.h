#pragma once

#include <ravo/platform/code_pages.h>

#include <string>
#include <string_view>

namespace ravo::utils {

/// A text of the system's 8-bit code page, for the members of families that end in "A"; `WStrToAStr` is the
/// way back.
[[nodiscard]] inline std::u16string Wide(std::string_view text) {
  return platform::CodePages().FromCodePage(text);
}

}  // namespace ravo::utils

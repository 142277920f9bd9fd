#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Returns Windows-1250 text with 25 Czech letters replaced by their base letters; every other byte is
/// unchanged.
[[nodiscard]] RAVO_API std::string RemoveDiacritics(std::string_view text);

}  // namespace ravo::RavoInterfaceCommon

#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Windows-1250 text with 25 Czech letters replaced by their base letters and every other byte as it is.
[[nodiscard]] RAVO_API std::string RemoveDiacritics(std::string_view text);

}  // namespace ravo::RavoInterfaceCommon

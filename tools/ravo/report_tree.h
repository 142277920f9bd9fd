#pragma once

#include "json_text.h"

#include <string_view>

namespace tool {

/// Returns the report as an array of {caption, value?, items?}, nested by the tabs of its lines. A line
/// "caption: value" has a value, which may be empty; a heading has none. `report` is UTF-8, its lines end in
/// CR LF.
[[nodiscard]] Json ReportTree(std::string_view report);

}  // namespace tool

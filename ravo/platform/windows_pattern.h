#pragma once

#include <string>
#include <string_view>

namespace ravo::platform {

/// A date or time pattern as Windows keeps them in its locale facts, as a pattern of `FormatDateTime`. An era
/// (g) has no counterpart and is left out; hours (h, H) become hours of whichever clock the pattern has by
/// its AM/PM text.
[[nodiscard]] std::u16string FromWindowsPattern(std::u16string_view pattern);

}  // namespace ravo::platform

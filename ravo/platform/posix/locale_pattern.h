#pragma once

#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Returns a date or time pattern of the C library (`strftime`) in the letters of `FormatDateTime`. Literal
/// letters are quoted; conversions without a counterpart, such as the time zone, are dropped.
[[nodiscard]] std::u16string PatternFromLocale(std::u16string_view pattern);

}  // namespace ravo::platform::posix

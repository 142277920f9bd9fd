#pragma once

#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// A date or time pattern of the C library (`strftime`) in the letters of `FormatDateTime`. Letters that
/// stand for themselves are quoted; what has no counterpart, such as the time zone, is left out.
[[nodiscard]] std::u16string PatternFromLocale(std::u16string_view pattern);

}  // namespace ravo::platform::posix

#pragma once

#include <string>
#include <string_view>

namespace ravo::platform {

/// Returns a date or time pattern of the Windows locale settings as a pattern of `FormatDateTime`.
///
/// An era (g) has no counterpart and is dropped. Hours (h, H) become hours of the 12-hour clock if the
/// pattern has AM/PM text, otherwise of the 24-hour clock.
[[nodiscard]] std::u16string FromWindowsPattern(std::u16string_view pattern);

}  // namespace ravo::platform

#pragma once

#include <ravo/RavoInterfaceCommon.h>

#include <string>

namespace tool {

/// The month of a day as a small calendar: a line for each week with its ISO number, Monday first, the day
/// itself in brackets, holidays and Sundays with a "*" behind. Years 1 to 9999.
[[nodiscard]] std::string MonthSheet(const ravo::DateParts& day);

}  // namespace tool

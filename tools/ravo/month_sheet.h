#pragma once

#include <ravo/RavoInterfaceCommon.h>

#include <string>

namespace tool {

/// Returns the month of a day as a small calendar: one line per week with its ISO number, Monday first, the
/// day itself in brackets, Sundays marked with "*", and German holidays too if `holidays_de`. Years 1 to
/// 9999.
[[nodiscard]] std::string MonthSheet(const ravo::DateParts& day, bool holidays_de);

}  // namespace tool

#pragma once

#include <string>

namespace tool {

/// Returns the name of a month, 1 to 12, in the user's language.
[[nodiscard]] std::string MonthName(int month);

/// Returns the English name of a day of the week, 0 for Monday to 6 for Sunday: the key of its translation,
/// and what scripts read.
[[nodiscard]] const char* WeekdayKey(int weekday);

}  // namespace tool

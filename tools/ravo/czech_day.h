#pragma once

#include <ravo/czech/day.h>

#include <string>

namespace tool {

/// Returns today by the local clock.
[[nodiscard]] ravo::czech::Day Today();

/// Returns why a text is no day, for the parser of the command line; empty if it is one. Days are written as
/// `ReadDate` reads them; a time of day does not count.
[[nodiscard]] std::string CheckDay(const std::string& text);

/// Returns the day of a text that `CheckDay` accepted; of an empty one, today.
[[nodiscard]] ravo::czech::Day DayOrToday(const std::string& text);

/// Returns "2026-11-21".
[[nodiscard]] std::string DayText(ravo::czech::Day day);

/// Returns the name of the day of the week in the user's language.
[[nodiscard]] std::string WeekdayText(ravo::czech::Day day);

}  // namespace tool

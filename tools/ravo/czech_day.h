#pragma once

#include <ravo/czech/day.h>

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// Returns the day that a text means: "2026-11-21", "21.11.2026", "21. 11. 2026", "today" or "dnes".
[[nodiscard]] std::optional<ravo::czech::Day> ParseDay(std::string_view text);

/// Returns why a text is no day, for the parser of the command line; empty if it is one.
[[nodiscard]] std::string CheckDay(const std::string& text);

/// Returns the day of a text that `CheckDay` accepted; of an empty one, today by the local clock.
[[nodiscard]] ravo::czech::Day DayOrToday(const std::string& text);

/// Returns "2026-11-21".
[[nodiscard]] std::string DayText(ravo::czech::Day day);

/// Returns the name of the day of the week in the user's language.
[[nodiscard]] std::string WeekdayText(ravo::czech::Day day);

}  // namespace tool

#pragma once

#include <ravo/czech/day.h>
#include <ravo/czech/fixed_text.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace ravo::czech {

/// How a date is written.
enum class DateForm : std::uint8_t {
  Iso,      ///< "2026-11-21"
  Czech,    ///< "21. 11. 2026"
  Compact,  ///< "20261121"
};

/// Returns a day as text. Precondition: it is in the years 1 to 9999.
[[nodiscard]] FixedText<12> DateText(Day day, DateForm form) noexcept;

/// Removes a date from the front of a UTF-8 text and returns it; nothing without one, and the text is as it
/// was.
///
/// Takes each form of `DateForm`: months and days of one or two digits, in the Czech form with or without
/// blanks. Whether there is such a date is `Exists`'s answer.
///
///     TakeDate("21.11.2026+14d")  // 21 November 2026; "+14d" is left
[[nodiscard]] std::optional<DateParts> TakeDate(std::string_view& text) noexcept;

}  // namespace ravo::czech

#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/format_settings.h>

#include <string>
#include <string_view>

namespace ravo {

/// Writes a date-time by a pattern. Letters count in either case:
///
///   d dd ddd dddd   day: plain, two digits, short and long weekday name
///   m mm mmm mmmm   month likewise; behind an hour, m and mm are minutes
///   y yy, yyyy      year: two digits, four digits
///   h hh            hour: of 24, or of 12 where the pattern holds AM/PM, A/P or AMPM
///   n nn  s ss      minute, second
///   z zzz           millisecond
///   AM/PM A/P AMPM  half of the day: "AM"/"PM" and "A"/"P" as written, the locale's own texts
///
/// Text in single or double quotes stands for itself, and so does every other character.
[[nodiscard]] RAVO_API std::u16string FormatDateTime(std::u16string_view pattern, DateTime value,
                                                     const FormatSettings& settings);

/// The locale's short date, a blank and its long time; the date alone at midnight exactly.
[[nodiscard]] RAVO_API std::u16string DateTimeText(DateTime value, const FormatSettings& settings);

}  // namespace ravo

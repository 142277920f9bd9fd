#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/format_settings.h>

#include <string>
#include <string_view>

namespace ravo {

/// Writes a date-time by a pattern, as `SplitDateTime` splits it. Letters count in either case:
///
///   d dd ddd dddd   day: plain, two digits, short and long weekday name
///   m mm mmm mmmm   month likewise; next behind an hour, whatever plain text between, m and mm are minutes
///   y yy, yyyy      year: two digits, four digits
///   h hh            hour: of 24, or of 12 where the pattern holds AM/PM, A/P or AMPM
///   n nn  s ss      minute, second
///   z zzz           millisecond
///   AM/PM A/P AMPM  half of the day: "AM"/"PM" and "A"/"P" as written, the locale's own texts
///
/// More of a letter than is listed counts as the longest listed. Text in single or double quotes stands for
/// itself (a quote that is never closed reaches to the end), and so does every other character.
[[nodiscard]] RAVO_API std::u16string FormatDateTime(std::u16string_view pattern, DateTime value,
                                                     const FormatSettings& settings);

/// The locale's short date, a blank and its long time; the date alone where the time of day, in milliseconds,
/// is midnight.
[[nodiscard]] RAVO_API std::u16string DateTimeText(DateTime value, const FormatSettings& settings);

}  // namespace ravo

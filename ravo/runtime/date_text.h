#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/format_settings.h>

#include <string>
#include <string_view>

namespace ravo {

/// Returns `value` formatted by `pattern`, split as by `SplitDateTime`. Pattern letters are case-insensitive:
///
///   d dd ddd dddd   day: plain, two digits, short weekday name, long weekday name
///   m mm mmm mmmm   month likewise; m and mm are minutes if the preceding letters are hours
///   y yy, yyyy      year: two digits, four digits
///   h hh            hour: 24-hour, or 12-hour if the pattern contains AM/PM, A/P or AMPM
///   n nn  s ss      minute, second
///   z zzz           millisecond
///   AM/PM A/P AMPM  half of the day: "AM"/"PM" and "A"/"P" as written, or the texts of the locale
///
/// A longer run of one letter counts as its longest listed form. Text in single or double quotes is copied as
/// it is, and so is every other character; a missing closing quote is implied at the end.
///
/// Throws `ConvertError` as `SplitDateTime` does.
[[nodiscard]] RAVO_API std::u16string FormatDateTime(std::u16string_view pattern, DateTime value,
                                                     const FormatSettings& settings);

/// Returns the locale's short date, a space and its long time; the date alone if the time of day, rounded to
/// milliseconds, is midnight.
///
/// Throws `ConvertError` as `SplitDateTime` does.
[[nodiscard]] RAVO_API std::u16string DateTimeText(DateTime value, const FormatSettings& settings);

}  // namespace ravo

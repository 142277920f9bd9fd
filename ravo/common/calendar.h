#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

/// Months, years and the compact texts in which dates and times are written into SQL statements. Date-times
/// are rounded to the millisecond before they are split, so the last half millisecond of a day belongs to the
/// next one. What names a date raises `ConvertError` outside the years 1 to 9999.
namespace ravo::RavoInterfaceCommon {

/// "YYYYMMDD". The time of day is ignored.
[[nodiscard]] RAVO_API std::u16string DateToSQLString(DateTime value);

/// "HH:MM:SS:mmm", a colon before the milliseconds too. The date is ignored, also one outside the calendar;
/// `ConvertError` for infinities and what is no number.
[[nodiscard]] RAVO_API std::u16string TimeToSQLString(DateTime value);

/// "YYYYMMDD HH:MM:SS:mmm".
[[nodiscard]] RAVO_API std::u16string DateTimeToSQLString(DateTime value);

/// The same day one month on for a step above 0, one month back for any other: only the sign counts, and 0
/// goes back. A day that the new month has not becomes its last one; the time of day is dropped.
/// `ConvertError` outside the years 1 to 9999.
[[nodiscard]] RAVO_API DateTime ChangeMonth(DateTime value, std::int32_t step);

/// The same day one year on for a step above 0, one year back for any other; 29 February becomes 28 in a
/// common year; the time of day is dropped. `ConvertError` outside the years 1 to 9999.
[[nodiscard]] RAVO_API DateTime ChangeYear(DateTime value, std::int32_t step);

/// The Gregorian rule; negative years follow it too.
[[nodiscard]] RAVO_API bool IsLeapYear(std::int32_t year) noexcept;

/// Days of a month; `RangeError` for a month outside 1 to 12.
[[nodiscard]] RAVO_API std::int32_t DaysPerMonth(std::int32_t year, std::int32_t month);

/// The first and the last day of a month. `RangeError` for a year or month outside 0 to 65535, `ConvertError`
/// for one that no date can have; the results are then untouched.
RAVO_API void FirstLastDay(std::int32_t year, std::int32_t month, DateTime& first, DateTime& last);

}  // namespace ravo::RavoInterfaceCommon

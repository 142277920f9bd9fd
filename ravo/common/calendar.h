#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

/// Steps of months and years, and the compact texts of dates and times in SQL statements. A date-time is
/// rounded to the millisecond before it is split, so the last half millisecond of a day belongs to the next
/// day. Functions of a date throw `ConvertError` outside the years 1 to 9999.
namespace ravo::RavoInterfaceCommon {

/// Returns the date as "YYYYMMDD"; the time of day is ignored.
[[nodiscard]] RAVO_API std::u16string DateToSQLString(DateTime value);

/// Returns the time of day as "HH:MM:SS:mmm", with a colon before the milliseconds too.
///
/// The date is ignored and may be outside the calendar. Throws `ConvertError` for infinities and NaN.
[[nodiscard]] RAVO_API std::u16string TimeToSQLString(DateTime value);

/// Returns date and time of day as "YYYYMMDD HH:MM:SS:mmm".
[[nodiscard]] RAVO_API std::u16string DateTimeToSQLString(DateTime value);

/// Returns the same day of the next month if `step` is positive, else of the previous month; the time of day
/// is dropped.
///
/// A day past the end of the new month becomes its last day. Only the sign of `step` counts, and 0 steps
/// back. Throws `ConvertError` outside the years 1 to 9999.
[[nodiscard]] RAVO_API DateTime ChangeMonth(DateTime value, std::int32_t step);

/// Returns the same day of the next year if `step` is positive, else of the previous year; the time of day is
/// dropped.
///
/// 29 February becomes 28 February in a common year. Only the sign of `step` counts, and 0 steps back. Throws
/// `ConvertError` outside the years 1 to 9999.
[[nodiscard]] RAVO_API DateTime ChangeYear(DateTime value, std::int32_t step);

/// Returns whether `year` is a leap year of the Gregorian calendar; negative years follow the same rule.
[[nodiscard]] RAVO_API bool IsLeapYear(std::int32_t year) noexcept;

/// Returns the number of days of a month. Throws `RangeError` for a month outside 1 to 12.
[[nodiscard]] RAVO_API std::int32_t DaysPerMonth(std::int32_t year, std::int32_t month);

/// Sets `first` and `last` to the first and the last day of a month.
///
/// Throws `RangeError` if year or month is outside 0 to 65535, and `ConvertError` if no date has them; the
/// results are then unchanged.
RAVO_API void FirstLastDay(std::int32_t year, std::int32_t month, DateTime& first, DateTime& last);

}  // namespace ravo::RavoInterfaceCommon

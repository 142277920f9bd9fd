#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>

namespace ravo {

/// A date-time in days since midnight of 30 December 1899, in the proleptic Gregorian calendar. The fraction
/// counts forward from midnight on negative days too: -1.25 is 29 December 1899, 06:00.
using DateTime = double;

/// A calendar date.
struct DateParts {
  int year = 0;   ///< 1 to 9999
  int month = 0;  ///< 1 to 12
  int day = 0;    ///< 1 to 31
  friend bool operator==(const DateParts&, const DateParts&) = default;
};

/// A time of day.
struct TimeParts {
  int hour = 0;         ///< 0 to 23
  int minute = 0;       ///< 0 to 59
  int second = 0;       ///< 0 to 59
  int millisecond = 0;  ///< 0 to 999
  friend bool operator==(const TimeParts&, const TimeParts&) = default;
};

/// A date and a time of day.
struct DateTimeParts {
  DateParts date;  ///< the day
  TimeParts time;  ///< the time of that day
  friend bool operator==(const DateTimeParts&, const DateTimeParts&) = default;
};

/// Returns the calendar date and the time of day of `value`.
///
/// The time of day is rounded to the nearest millisecond, ties to even; a time that rounds up to 24:00
/// carries into the next day. Throws `ConvertError` if the result is outside 1 January 1 to 31 December 9999,
/// and for infinities and NaN.
[[nodiscard]] RAVO_API DateTimeParts SplitDateTime(DateTime value);

/// Returns the time of day of `value`, rounded as by `SplitDateTime`; a time that rounds up to 24:00 is
/// midnight.
///
/// Any day is accepted, also one outside the calendar. Throws `ConvertError` for infinities and NaN.
[[nodiscard]] RAVO_API TimeParts TimeOfDay(DateTime value);

/// Returns the day number of a calendar date.
///
/// Throws `ConvertError` if `year` is outside 1 to 9999, `month` outside 1 to 12, or if the month has no such
/// `day`.
[[nodiscard]] RAVO_API DateTime EncodeDate(int year, int month, int day);

/// Returns a time of day as a fraction of a day, at least 0 and below 1, rounded to the nearest double.
///
/// Throws `ConvertError` for a time outside 00:00:00.000 to 23:59:59.999.
[[nodiscard]] RAVO_API DateTime EncodeTime(int hour, int minute, int second, int millisecond);

/// Returns a date and time of day as a date-time, rounded to the nearest double. Days before 30 December 1899
/// are allowed.
///
/// Throws `ConvertError` as `EncodeDate` and `EncodeTime` do.
[[nodiscard]] RAVO_API DateTime EncodeDateTime(const DateTimeParts& parts);

/// Returns the day of the week, 1 for Sunday to 7 for Saturday, of the date that `SplitDateTime` returns.
///
/// Throws `ConvertError` as `SplitDateTime` does.
[[nodiscard]] RAVO_API int DayOfWeek(DateTime value);

/// Returns whether `year` is a leap year of the Gregorian calendar; negative years follow the same rule.
[[nodiscard]] constexpr bool IsGregorianLeapYear(std::int32_t year) noexcept {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

}  // namespace ravo

#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>

namespace ravo {

/// Days since 30 December 1899. Before that day the fraction still counts forward from midnight: -1.25 is 29
/// December 1899, 6 o'clock. The Gregorian calendar applies throughout.
using DateTime = double;

/// A calendar date. `month` is 1 to 12, `day` 1 to 31.
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

/// Splits into calendar and clock. The time of day is rounded to the millisecond first (to nearest, ties to
/// even), and a day that fills up carries into the next one, so date and time always belong together. Raises
/// `ConvertError` where the result lies outside 1 January 1 to 31 December 9999, and for infinities and what
/// is no number.
[[nodiscard]] RAVO_API DateTimeParts SplitDateTime(DateTime value);

/// The time of day alone, rounded as `SplitDateTime` rounds it: a day that fills up is midnight. Takes days
/// outside the calendar too; `ConvertError` for infinities and what is no number.
[[nodiscard]] RAVO_API TimeParts TimeOfDay(DateTime value);

/// The day number of a date. Raises `ConvertError` for a year outside 1 to 9999, a month outside 1 to 12, or
/// a day that the month has not.
[[nodiscard]] RAVO_API DateTime EncodeDate(int year, int month, int day);

/// The fraction of a day, 0 up to but not 1, as the nearest double. Raises `ConvertError` for parts outside
/// 00:00:00.000 to 23:59:59.999.
[[nodiscard]] RAVO_API DateTime EncodeTime(int hour, int minute, int second, int millisecond);

/// Date and time of day together, also before 30 December 1899, as the nearest double. Raises `ConvertError`
/// as `EncodeDate` and `EncodeTime` do.
[[nodiscard]] RAVO_API DateTime EncodeDateTime(const DateTimeParts& parts);

/// 1 for Sunday to 7 for Saturday, of the date that `SplitDateTime` gives.
[[nodiscard]] RAVO_API int DayOfWeek(DateTime value);

/// Whether February of `year` has 29 days in the Gregorian calendar; negative years follow the same rule.
[[nodiscard]] constexpr bool IsGregorianLeapYear(std::int32_t year) noexcept {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

}  // namespace ravo

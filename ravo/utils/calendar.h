#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

/// Arithmetic on whole days in the proleptic Gregorian calendar.
///
/// A date is one integer, its Julian Day Number: 2451545 is 1 January 2000. Years are astronomical (0 is 1
/// BC), months 1 to 12, days 1 to 31. The day of the week is 0 for Monday to 6 for Sunday, also before day 0.
/// Every function throws `OverflowError` if a result does not fit 32 bits.
namespace ravo::DIUtils {

/// A day as its Julian Day Number.
using TJulianDate = std::int32_t;
/// A pointer to a day.
using PJulianDate = TJulianDate*;

// Conversion.

/// Returns the Julian date of a year, month and day, by the formula of Fliegel and Van Flandern.
///
/// Any numbers are accepted; a day past the end of its month runs on into the next one. The result agrees
/// with the calendar from 1 March -4800 on.
[[nodiscard]] RAVO_API TJulianDate YmdToJulianDate(std::int32_t year, std::uint16_t month, std::uint16_t day);

/// Sets `year`, `month` and `day` to the parts of a date, exact from the year -4800 on.
///
/// Throws `RangeError` if the formula gives a negative month or day, which happens far before that; the parts
/// are then unchanged.
RAVO_API void JulianDateToYmd(TJulianDate date, std::int32_t& year, std::uint16_t& month, std::uint16_t& day);

/// Returns the day of the month, 1 to 31.
[[nodiscard]] RAVO_API std::uint16_t DayOfJulianDate(TJulianDate date);
/// Returns the month, 1 to 12.
[[nodiscard]] RAVO_API std::uint16_t MonthOfJulianDate(TJulianDate date);
/// Returns the year.
[[nodiscard]] RAVO_API std::int32_t YearOfJuilanDate(TJulianDate date);

/// Returns the compact form of a date, year * 10000 + month * 100 + day: 20240331. Throws `RangeError` if it
/// is negative.
[[nodiscard]] RAVO_API std::uint32_t YmdToIsoDate(std::int32_t year, std::uint16_t month, std::uint16_t day);
/// Returns the compact form in decimal, zero-padded to eight digits: "09990102". Throws `RangeError` if it is
/// negative.
[[nodiscard]] RAVO_API std::string YmdToIsoDateA(std::int32_t year, std::uint16_t month, std::uint16_t day);
[[nodiscard]] RAVO_API std::u16string YmdToIsoDateW(std::int32_t year, std::uint16_t month,
                                                    std::uint16_t day);
/// Returns the compact form of a day as a number or a text. Throws `RangeError` if it is negative.
[[nodiscard]] RAVO_API std::uint32_t JulianDateToIsoDate(TJulianDate date);
[[nodiscard]] RAVO_API std::string JulianDateToIsoDateA(TJulianDate date);
[[nodiscard]] RAVO_API std::u16string JulianDateToIsoDateW(TJulianDate date);

/// Sets `year`, `month` and `day` to the three parts of a compact date, whether there is such a day or not.
RAVO_API void ISODateToYmd(std::uint32_t iso_date, std::int32_t& year, std::uint16_t& month,
                           std::uint16_t& day) noexcept;
/// Returns the day of a compact date; a day past the end of its month runs on into the next one.
[[nodiscard]] RAVO_API TJulianDate ISODateToJulianDate(std::uint32_t iso_date);

// Weeks.

/// Returns the day of the week, 0 for Monday to 6 for Sunday.
[[nodiscard]] RAVO_API std::int32_t DayOfWeek(TJulianDate date) noexcept;
[[nodiscard]] RAVO_API std::int32_t DayOfWeekYmd(std::int32_t year, std::uint16_t month, std::uint16_t day);

/// Returns whether the day is a Monday to Friday.
[[nodiscard]] RAVO_API bool JulianDateIsWeekDay(TJulianDate date) noexcept;

/// Returns the Monday, or the Sunday, of the week of a day.
[[nodiscard]] RAVO_API TJulianDate FirstDayOfWeek(TJulianDate date);
[[nodiscard]] RAVO_API TJulianDate LastDayOfWeek(TJulianDate date);
RAVO_API void FirstDayOfWeekYmd(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);
RAVO_API void LastDayOfWeekYmd(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);

/// Returns the ISO 8601 week, 1 to 53.
[[nodiscard]] RAVO_API std::int32_t ISOWeekNumber(TJulianDate date);
[[nodiscard]] RAVO_API std::int32_t ISOWeekNumberYmd(std::int32_t year, std::uint16_t month,
                                                     std::uint16_t day);
/// Returns a day of an ISO 8601 week; `day_of_week` is 0 for Monday. Weeks and days out of range run on.
[[nodiscard]] RAVO_API TJulianDate ISOWeekToJulianDate(std::int32_t iso_year, std::int32_t week,
                                                       std::int32_t day_of_week);

// Months and years.

/// Returns whether `year` is a leap year of the Gregorian calendar; negative years follow the same rule.
[[nodiscard]] RAVO_API bool IsLeapYear(std::int32_t year) noexcept;

/// Returns the number of days of a month. Throws `RangeError` for a month outside 1 to 12.
[[nodiscard]] RAVO_API std::uint16_t DaysInMonthYm(std::int32_t year, std::uint16_t month);
[[nodiscard]] RAVO_API std::uint16_t DaysInMonth(TJulianDate date);

/// Returns the first, or the last, day of the month of a day.
[[nodiscard]] RAVO_API TJulianDate FirstDayOfMonth(TJulianDate date);
[[nodiscard]] RAVO_API TJulianDate LastDayOfMonth(TJulianDate date);
/// Sets `day` to 1.
RAVO_API void FirstDayOfMonthYmd(std::int32_t year, std::uint16_t month, std::uint16_t& day) noexcept;
/// Sets `day` to the last day of a month. Throws `RangeError` for a month outside 1 to 12.
RAVO_API void LastDayOfMonthYmd(std::int32_t year, std::uint16_t month, std::uint16_t& day);

/// Returns whether the month has such a day. Any year is accepted; never throws.
[[nodiscard]] RAVO_API bool IsDateValid(std::int32_t year, std::uint16_t month, std::uint16_t day) noexcept;

/// Advances the date to the next day. Throws `RangeError` for a month outside 1 to 12. If this or any of the
/// functions below throws, the parts are unchanged.
RAVO_API void IncDay(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);
/// Advances the date by `count` days; a negative `count` goes back.
RAVO_API void IncDays(std::int32_t& year, std::uint16_t& month, std::uint16_t& day, std::int32_t count);
/// Advances the date by one month. A day past the end of the new month becomes its last day.
RAVO_API void IncMonth(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);
/// Advances the date by `count` months; a negative `count` goes back. A day past the end of the new month
/// becomes its last day.
RAVO_API void IncMonths(std::int32_t& year, std::uint16_t& month, std::uint16_t& day, std::int32_t count);

// Holidays; the current date.

/// Returns Easter Sunday, exact for the years 1900 to 2099.
///
/// Outside them a formula without century terms continues, with non-negative remainders for negative years
/// too.
[[nodiscard]] RAVO_API TJulianDate EasterSunday(std::int32_t year);
RAVO_API void EasterSundayYmd(std::int32_t year, std::uint16_t& month, std::uint16_t& day);

/// Returns whether a day is a holiday: Sundays, 1 January, 1 May, 3 October, 24, 25, 26 and 31 December, Good
/// Friday, Easter Monday, Ascension Day and Whit Monday.
[[nodiscard]] RAVO_API bool IsHolidayInGermany(TJulianDate date);
[[nodiscard]] RAVO_API bool IsHolidayInGermanyYmd(std::int32_t year, std::uint16_t month, std::uint16_t day);

/// Returns the day of the month of the current local date.
[[nodiscard]] RAVO_API std::uint16_t CurrentDay();
/// Returns the current month, 1 to 12.
[[nodiscard]] RAVO_API std::uint16_t CurrentMonth();
/// Returns the current year.
[[nodiscard]] RAVO_API std::int32_t CurrentYear();
/// Returns the current quarter, 1 to 4.
[[nodiscard]] RAVO_API std::uint16_t CurrentQuarter();
/// Returns the current local date as a Julian date.
[[nodiscard]] RAVO_API TJulianDate CurrentJulianDate();

}  // namespace ravo::DIUtils

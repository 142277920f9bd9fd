#pragma once

#include <ravo/runtime/date_time.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

/// Arithmetic on whole days in the proleptic Gregorian calendar. A date is one integer, its Julian Day
/// Number: 2451545 is 1 January 2000. Years are astronomical (0 is 1 BC), months 1 to 12, days 1 to 31; the
/// day of the week is 0 for Monday to 6 for Sunday, also before day 0. All arithmetic is checked: what leaves
/// 32 bits raises `OverflowError`.
namespace ravo::DIUtils {

/// A day, by its Julian Day Number.
using TJulianDate = std::int32_t;
/// Where a day is kept.
using PJulianDate = TJulianDate*;

// Conversion.

/// The Julian date of year, month and day by the formula of Fliegel and Van Flandern, for any numbers: a day
/// beyond its month counts on. It is the calendar's from 1 March -4800 on.
[[nodiscard]] RAVO_API TJulianDate YmdToJulianDate(std::int32_t year, std::uint16_t month, std::uint16_t day);

/// The parts of a date, right for every day of the years -4800 and after. `RangeError` where the formula
/// gives a negative month or day (far before); the parts are then as they were.
RAVO_API void JulianDateToYmd(TJulianDate date, std::int32_t& year, std::uint16_t& month, std::uint16_t& day);

/// The day of the month, 1 to 31.
[[nodiscard]] RAVO_API std::uint16_t DayOfJulianDate(TJulianDate date);
/// The month, 1 to 12.
[[nodiscard]] RAVO_API std::uint16_t MonthOfJulianDate(TJulianDate date);
/// The year of a date.
[[nodiscard]] RAVO_API std::int32_t YearOfJuilanDate(TJulianDate date);

/// The compact form, year * 10000 + month * 100 + day: 20240331. `RangeError` where that is negative.
[[nodiscard]] RAVO_API std::uint32_t YmdToIsoDate(std::int32_t year, std::uint16_t month, std::uint16_t day);
/// The compact form in decimal, padded with "0" to eight digits: "09990102". `RangeError` as above.
[[nodiscard]] RAVO_API std::string YmdToIsoDateA(std::int32_t year, std::uint16_t month, std::uint16_t day);
[[nodiscard]] RAVO_API std::u16string YmdToIsoDateW(std::int32_t year, std::uint16_t month,
                                                    std::uint16_t day);
/// The compact form of a day, as a number or as text. `RangeError` where it is negative.
[[nodiscard]] RAVO_API std::uint32_t JulianDateToIsoDate(TJulianDate date);
[[nodiscard]] RAVO_API std::string JulianDateToIsoDateA(TJulianDate date);
[[nodiscard]] RAVO_API std::u16string JulianDateToIsoDateW(TJulianDate date);

/// The three parts of a compact date as they stand, whether there is such a day or not.
RAVO_API void ISODateToYmd(std::uint32_t iso_date, std::int32_t& year, std::uint16_t& month,
                           std::uint16_t& day) noexcept;
/// The day that a compact date names; a day beyond its month counts on.
[[nodiscard]] RAVO_API TJulianDate ISODateToJulianDate(std::uint32_t iso_date);

// Weeks.

/// 0 for Monday to 6 for Sunday.
[[nodiscard]] RAVO_API std::int32_t DayOfWeek(TJulianDate date) noexcept;
[[nodiscard]] RAVO_API std::int32_t DayOfWeekYmd(std::int32_t year, std::uint16_t month, std::uint16_t day);

/// Whether the day is a Monday to Friday.
[[nodiscard]] RAVO_API bool JulianDateIsWeekDay(TJulianDate date) noexcept;

/// The Monday and the Sunday of a day's week.
[[nodiscard]] RAVO_API TJulianDate FirstDayOfWeek(TJulianDate date);
[[nodiscard]] RAVO_API TJulianDate LastDayOfWeek(TJulianDate date);
RAVO_API void FirstDayOfWeekYmd(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);
RAVO_API void LastDayOfWeekYmd(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);

/// The ISO 8601 week, 1 to 53.
[[nodiscard]] RAVO_API std::int32_t ISOWeekNumber(TJulianDate date);
[[nodiscard]] RAVO_API std::int32_t ISOWeekNumberYmd(std::int32_t year, std::uint16_t month,
                                                     std::uint16_t day);
/// A day of an ISO week; `day_of_week` is 0 for Monday. Weeks and days beyond their range count on.
[[nodiscard]] RAVO_API TJulianDate ISOWeekToJulianDate(std::int32_t iso_year, std::int32_t week,
                                                       std::int32_t day_of_week);

// Months and years.

/// The Gregorian rule; negative years follow it too.
[[nodiscard]] RAVO_API bool IsLeapYear(std::int32_t year) noexcept;

/// `RangeError` for a month outside 1 to 12.
[[nodiscard]] RAVO_API std::uint16_t DaysInMonthYm(std::int32_t year, std::uint16_t month);
[[nodiscard]] RAVO_API std::uint16_t DaysInMonth(TJulianDate date);

/// The first and the last day of a day's month.
[[nodiscard]] RAVO_API TJulianDate FirstDayOfMonth(TJulianDate date);
[[nodiscard]] RAVO_API TJulianDate LastDayOfMonth(TJulianDate date);
/// Always 1.
RAVO_API void FirstDayOfMonthYmd(std::int32_t year, std::uint16_t month, std::uint16_t& day) noexcept;
/// `RangeError` for a month outside 1 to 12.
RAVO_API void LastDayOfMonthYmd(std::int32_t year, std::uint16_t month, std::uint16_t& day);

/// Whether the month has such a day. Any year is accepted; never raises.
[[nodiscard]] RAVO_API bool IsDateValid(std::int32_t year, std::uint16_t month, std::uint16_t day) noexcept;

/// The next day. `RangeError` for a month outside 1 to 12. Here and below the parts stay as they were where
/// an error is raised.
RAVO_API void IncDay(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);
/// The day `count` days later, or earlier when negative.
RAVO_API void IncDays(std::int32_t& year, std::uint16_t& month, std::uint16_t& day, std::int32_t count);
/// The same day one month later, or the month's last where it has no such day.
RAVO_API void IncMonth(std::int32_t& year, std::uint16_t& month, std::uint16_t& day);
/// The same day `count` months later, or earlier when negative; or the month's last.
RAVO_API void IncMonths(std::int32_t& year, std::uint16_t& month, std::uint16_t& day, std::int32_t count);

// Feasts and today.

/// Easter Sunday, exact for the years 1900 to 2099; a formula without century terms continues outside them,
/// with remainders from 0 upwards for negative years too.
[[nodiscard]] RAVO_API TJulianDate EasterSunday(std::int32_t year);
RAVO_API void EasterSundayYmd(std::int32_t year, std::uint16_t& month, std::uint16_t& day);

/// Sundays, 1 January, 1 May, 3 October, 24, 25, 26 and 31 December, Good Friday, Easter Monday, Ascension
/// Day and Whit Monday.
[[nodiscard]] RAVO_API bool IsHolidayInGermany(TJulianDate date);
[[nodiscard]] RAVO_API bool IsHolidayInGermanyYmd(std::int32_t year, std::uint16_t month, std::uint16_t day);

/// From the local date of the system's clock.
[[nodiscard]] RAVO_API std::uint16_t CurrentDay();
/// The month, 1 to 12.
[[nodiscard]] RAVO_API std::uint16_t CurrentMonth();
/// The year.
[[nodiscard]] RAVO_API std::int32_t CurrentYear();
/// 1 to 4.
[[nodiscard]] RAVO_API std::uint16_t CurrentQuarter();
/// Today.
[[nodiscard]] RAVO_API TJulianDate CurrentJulianDate();

}  // namespace ravo::DIUtils

#pragma once

#include <ravo/czech/day.h>
#include <ravo/czech/reason.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// Holidays by law 245/2000, working days, and the ends of terms.
///
/// Days from 1993 to 8 August 2000 have the days of rest of law 93/1951, and those before 2000 are marked as
/// not verified; before 1993 there are none. Days are always arguments: this room has no clock.
namespace ravo::czech {

/// The first day that is verified: 1 January 2000.
inline constexpr Day kFirstVerifiedDay = DayOf({2000, 1, 1});

/// A public holiday and the years in which it holds.
struct Holiday {
  std::int16_t first_year = 0;  ///< the first year
  std::int16_t last_year = 0;   ///< the last year; 9999 if there is no end
  std::int8_t month = 0;        ///< 1 to 12; 0 if it follows Easter
  std::int8_t day = 0;          ///< of the month, or days after Easter Sunday
  std::string_view czech;       ///< its name by law, UTF-8
  std::string_view english;     ///< its name in English
  std::string_view law;         ///< the law that gave it this form: "245/2000"
};

/// Returns all holidays, by their place in the year.
[[nodiscard]] std::span<const Holiday> Holidays() noexcept;

/// Returns Easter Sunday of a year, 1 to 9999, by the Gregorian reckoning, also for the years before 1583.
[[nodiscard]] Day EasterSunday(int year) noexcept;

/// Returns the day of a holiday in `year`. Precondition: it holds in that year.
[[nodiscard]] Day DayOfHoliday(const Holiday& holiday, int year) noexcept;

/// The holidays of one day: 1 January has two.
struct HolidaysOfDay {
  std::array<const Holiday*, 2> rows{};  ///< the first `count` of them
  std::size_t count = 0;                 ///< 0 to 2
  bool verified = false;                 ///< whether the day is in 2000 or later
};

/// Returns the holidays of a day; none for a day outside of the years 1 to 9999.
[[nodiscard]] HolidaysOfDay HolidaysOn(Day day) noexcept;

/// Returns whether the day is Monday to Friday and no holiday; false outside of the years 1 to 9999.
[[nodiscard]] bool IsWorkingDay(Day day) noexcept;

/// Returns the first working day from `day` on, which may be `day` itself. Refused: `DayRange`.
[[nodiscard]] Parsed<Day> NextWorkingDay(Day day) noexcept;

/// Returns how many working days there are after `from` up to and with `to`; negative if `to` is before
/// `from`.
///
/// Exchanging the two changes the sign. Refused: `DayRange`.
[[nodiscard]] Parsed<std::int32_t> WorkingDaysBetween(Day from, Day to) noexcept;

/// When a term ends.
struct Term {
  Day counted;  ///< as the days or months count
  Day due;      ///< the same, or the next working day if it is not one (civil code, section 607; tax code,
                ///< section 33)
  bool verified = false;  ///< whether the holidays up to there are verified
};

/// Returns when a term of `days` days ends; the day of the event, `from`, does not count. Refused:
/// `DayRange`.
[[nodiscard]] Parsed<Term> TermInDays(Day from, std::int32_t days) noexcept;

/// Returns when a term of `months` months ends: on the day of the same number, or the month's last (civil
/// code, section 605).
///
/// Refused: `DayRange`.
[[nodiscard]] Parsed<Term> TermInMonths(Day from, std::int32_t months) noexcept;

/// Returns how many days `today` is past the due day; 0 up to that day.
[[nodiscard]] constexpr std::int32_t DaysOverdue(Day due, Day today) noexcept {
  return today > due ? today.number - due.number : 0;
}

}  // namespace ravo::czech

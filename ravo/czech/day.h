#pragma once

#include <ravo/runtime/date_time.h>

#include <chrono>
#include <compare>
#include <cstdint>

/// Days of the proleptic Gregorian calendar, for every year of `DateParts`.
namespace ravo::czech {

/// A day by its Julian Day Number: 2451545 is 1 January 2000.
struct Day {
  std::int32_t number = 0;  ///< counts days
  friend constexpr bool operator==(const Day&, const Day&) noexcept = default;
  friend constexpr std::strong_ordering operator<=>(const Day& left, const Day& right) noexcept {
    return left.number <=> right.number;
  }
};

/// Returns whether there is such a date in the years 1 to 9999.
[[nodiscard]] constexpr bool Exists(const DateParts& date) noexcept {
  using namespace std::chrono;
  if (date.year < 1 || date.year > 9999 || date.month < 1 || date.month > 12 || date.day < 1 || date.day > 31)
    return false;
  return year_month_day(year(date.year), month(static_cast<unsigned>(date.month)),
                        day(static_cast<unsigned>(date.day)))
      .ok();
}

namespace detail {
/// Julian Day Number of 1 January 1970.
inline constexpr std::int32_t kUnixDay = 2440588;
/// 1 January 1 and 31 December 9999.
inline constexpr Day kFirstDay{1721426};
inline constexpr Day kLastDay{5373484};
}  // namespace detail

/// Returns whether the day is in the years 1 to 9999.
[[nodiscard]] constexpr bool InCalendar(Day day) noexcept {
  return day >= detail::kFirstDay && day <= detail::kLastDay;
}

/// Returns the day of a date. Precondition: it exists.
[[nodiscard]] constexpr Day DayOf(const DateParts& date) noexcept {
  using namespace std::chrono;
  const sys_days days = year_month_day(year(date.year), month(static_cast<unsigned>(date.month)),
                                       day(static_cast<unsigned>(date.day)));
  return {static_cast<std::int32_t>(days.time_since_epoch().count()) + detail::kUnixDay};
}

/// Returns the date of a day. Precondition: it is in the years 1 to 9999.
[[nodiscard]] constexpr DateParts PartsOf(Day day) noexcept {
  using namespace std::chrono;
  const year_month_day date(sys_days(days(day.number - detail::kUnixDay)));
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

/// Returns the day of the week, 0 for Monday to 6 for Sunday. Precondition: the day is in the years 1 to
/// 9999.
[[nodiscard]] constexpr int Weekday(Day day) noexcept { return day.number % 7; }

}  // namespace ravo::czech

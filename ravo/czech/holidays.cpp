#include <ravo/czech/holidays.h>

#include <algorithm>
#include <limits>

namespace ravo::czech {
namespace {

constexpr Holiday kHolidays[] = {
#define RAVO_HOLIDAY(first, last, month, day, czech, english, law) \
  {first, last, month, day, czech, english, law},
#include "holidays.inc"
#undef RAVO_HOLIDAY
};

constexpr int kFirstYearWithHolidays = 1993;
// From January of the year 0 to the end of the calendar.
constexpr std::int64_t kMonths = 120'000;

constexpr bool HoldsIn(const Holiday& holiday, int year) noexcept {
  return year >= holiday.first_year && year <= holiday.last_year;
}

constexpr bool IsWeekend(Day day) noexcept { return Weekday(day) > 4; }

// Mondays to Fridays from the first day of the calendar, a Monday, up to before `day`.
constexpr std::int32_t WeekDaysBefore(Day day) noexcept {
  const std::int32_t days = day.number - detail::kFirstDay.number;
  return days / 7 * 5 + std::min(days % 7, 5);
}
static_assert(Weekday(detail::kFirstDay) == 0);

// A day with two names is one day of rest: the second of them does not count.
bool IsSecondName(const Holiday& holiday, int year) noexcept {
  return &holiday != kHolidays && holiday.month == 1 && holiday.day == 1 && HoldsIn(kHolidays[0], year);
}

// Holidays of `year` from Monday to Friday, after `from` up to and with `to`.
std::int32_t HolidaysWithin(int year, Day from, Day to) noexcept {
  std::int32_t count = 0;
  for (const Holiday& holiday : kHolidays) {
    if (!HoldsIn(holiday, year) || IsSecondName(holiday, year)) continue;
    const Day day = DayOfHoliday(holiday, year);
    count += day > from && day <= to && !IsWeekend(day) ? 1 : 0;
  }
  return count;
}

Parsed<Term> TermAt(std::int64_t number) noexcept {
  if (number < detail::kFirstDay.number || number > detail::kLastDay.number) return {{}, Code::DayRange};
  const Day counted{static_cast<std::int32_t>(number)};
  const auto due = NextWorkingDay(counted);
  if (!due) return {{}, due.code};
  return {{counted, due.value, counted >= kFirstVerifiedDay}};
}

// The parts of `date` months later, the day no farther than its month goes. A year of 0 is out of range.
DateParts MonthsLater(const DateParts& date, std::int32_t months) noexcept {
  const std::int64_t month = std::int64_t{date.year} * 12 + (date.month - 1) + months;
  if (month < 12 || month >= kMonths) return {};
  DateParts later{static_cast<int>(month / 12), static_cast<int>(month % 12) + 1, date.day};
  while (!Exists(later)) --later.day;
  return later;
}

}  // namespace

std::span<const Holiday> Holidays() noexcept { return kHolidays; }

// The reckoning of Meeus, for the Gregorian calendar.
Day EasterSunday(int year) noexcept {
  const int golden = year % 19;
  const int century = year / 100;
  const int of_century = year % 100;
  const int skipped = (century + 8) / 25;
  const int epact = (19 * golden + century - century / 4 - (century - skipped + 1) / 3 + 15) % 30;
  const int to_sunday = (32 + 2 * (century % 4) + 2 * (of_century / 4) - epact - of_century % 4) % 7;
  const int correction = (golden + 11 * epact + 22 * to_sunday) / 451;
  const int march = epact + to_sunday - 7 * correction + 114;
  return DayOf({year, march / 31, march % 31 + 1});
}

Day DayOfHoliday(const Holiday& holiday, int year) noexcept {
  if (holiday.month == 0) return {EasterSunday(year).number + holiday.day};
  return DayOf({year, holiday.month, holiday.day});
}

HolidaysOfDay HolidaysOn(Day day) noexcept {
  HolidaysOfDay found;
  if (!InCalendar(day)) return found;
  found.verified = day >= kFirstVerifiedDay;
  const int year = PartsOf(day).year;
  if (year < kFirstYearWithHolidays) return found;
  for (const Holiday& holiday : kHolidays) {
    if (HoldsIn(holiday, year) && DayOfHoliday(holiday, year) == day) found.rows[found.count++] = &holiday;
  }
  return found;
}

bool IsWorkingDay(Day day) noexcept {
  return InCalendar(day) && !IsWeekend(day) && HolidaysOn(day).count == 0;
}

Parsed<Day> NextWorkingDay(Day day) noexcept {
  for (; InCalendar(day); ++day.number) {
    if (IsWorkingDay(day)) return {day};
  }
  return {{}, Code::DayRange};
}

Parsed<std::int32_t> WorkingDaysBetween(Day from, Day to) noexcept {
  if (!InCalendar(from) || !InCalendar(to)) return {0, Code::DayRange};
  if (to < from) return {-WorkingDaysBetween(to, from).value};
  std::int32_t count = WeekDaysBefore({to.number + 1}) - WeekDaysBefore({from.number + 1});
  const int last = PartsOf(to).year;
  for (int year = std::max(PartsOf(from).year, kFirstYearWithHolidays); year <= last; ++year) {
    count -= HolidaysWithin(year, from, to);
  }
  return {count};
}

Parsed<Term> TermInDays(Day from, std::int32_t days) noexcept {
  if (!InCalendar(from)) return {{}, Code::DayRange};
  return TermAt(std::int64_t{from.number} + days);
}

Parsed<Term> TermInMonths(Day from, std::int32_t months) noexcept {
  if (!InCalendar(from)) return {{}, Code::DayRange};
  const DateParts later = MonthsLater(PartsOf(from), months);
  if (later.year == 0) return {{}, Code::DayRange};
  return TermAt(DayOf(later).number);
}

}  // namespace ravo::czech

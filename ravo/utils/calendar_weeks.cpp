#include <ravo/runtime/checked.h>
#include <ravo/utils/calendar.h>
#include <ravo/utils/calendar_formulas.h>
#include <ravo/utils/calendar_parts.h>

namespace ravo::DIUtils {

using utils::kSaturday;
using utils::kSunday;
using utils::Modulo;

namespace {

constexpr std::int32_t kDaysOfWeek = 7;

// Days are counted from Monday, 1 January -4799: the first day of a four-year group, of a century and of 400
// years.
constexpr std::uint32_t kBeforeEveryday = 31738;
constexpr std::uint32_t kDaysOfEverydayWeek = std::uint32_t{1} << 29;

}  // namespace

std::int32_t DayOfWeek(TJulianDate date) noexcept { return Modulo(date, kDaysOfWeek); }

std::int32_t DayOfWeekYmd(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  return DayOfWeek(YmdToJulianDate(year, month, day));
}

bool JulianDateIsWeekDay(TJulianDate date) noexcept { return DayOfWeek(date) < kSaturday; }

TJulianDate FirstDayOfWeek(TJulianDate date) { return CheckedSubtract(date, DayOfWeek(date)); }

TJulianDate LastDayOfWeek(TJulianDate date) { return CheckedAdd(date, kSunday) - DayOfWeek(date); }

void FirstDayOfWeekYmd(std::int32_t& year, std::uint16_t& month, std::uint16_t& day) {
  JulianDateToYmd(FirstDayOfWeek(YmdToJulianDate(year, month, day)), year, month, day);
}

void LastDayOfWeekYmd(std::int32_t& year, std::uint16_t& month, std::uint16_t& day) {
  JulianDateToYmd(LastDayOfWeek(YmdToJulianDate(year, month, day)), year, month, day);
}

std::int32_t ISOWeekNumber(TJulianDate date) {
  const std::uint32_t days = static_cast<std::uint32_t>(date) + kBeforeEveryday;
  if (days >= kDaysOfEverydayWeek) [[unlikely]]
    return utils::IsoWeekByFormula(date);
  // The Thursday of a week decides its year, and the position of that Thursday in the year its number.
  const std::uint32_t thursday = days / 7 * 7 + 3;
  const std::uint32_t centuries = (4 * thursday + 3) / 146097;
  const std::uint32_t evened = thursday + centuries - centuries / 4;
  const std::uint32_t years = (4 * evened + 3) / 1461;
  return static_cast<std::int32_t>((evened - 1461 * years / 4) / 7) + 1;
}

std::int32_t ISOWeekNumberYmd(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  return ISOWeekNumber(YmdToJulianDate(year, month, day));
}

TJulianDate ISOWeekToJulianDate(std::int32_t iso_year, std::int32_t week, std::int32_t day_of_week) {
  const TJulianDate first_monday = FirstDayOfWeek(YmdToJulianDate(iso_year, 1, 4));
  const std::int32_t weeks = CheckedMultiply(CheckedSubtract(week, 1), kDaysOfWeek);
  return CheckedAdd(CheckedAdd(first_monday, weeks), day_of_week);
}

}  // namespace ravo::DIUtils

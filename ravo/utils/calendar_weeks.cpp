#include <ravo/runtime/checked.h>
#include <ravo/utils/calendar.h>
#include <ravo/utils/calendar_formulas.h>
#include <ravo/utils/calendar_parts.h>

namespace ravo::DIUtils {

using utils::Modulo;

namespace {

constexpr std::int32_t kDaysOfWeek = 7;
constexpr std::int32_t kSaturday = 5;
constexpr std::int32_t kSunday = 6;

// The days of 400, 100 and 4 years.
constexpr std::int32_t kDaysOf400Years = 146097;
constexpr std::int32_t kDaysOf100Years = 36524;
constexpr std::int32_t kDaysOf4Years = 1461;

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
  const std::int32_t monday = CheckedAdd(date, 31741) - DayOfWeek(date);
  const std::int32_t d4 = Modulo(monday, kDaysOf400Years) % kDaysOf100Years % kDaysOf4Years;
  const std::int32_t leap = d4 / 1460;
  return ((d4 - leap) % 365 + leap) / kDaysOfWeek + 1;
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

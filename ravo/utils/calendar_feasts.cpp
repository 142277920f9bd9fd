#include <ravo/platform/locale.h>
#include <ravo/runtime/checked.h>
#include <ravo/utils/calendar.h>
#include <ravo/utils/calendar_formulas.h>
#include <ravo/utils/calendar_parts.h>

#include <array>

namespace ravo::DIUtils {

using utils::kSunday;
using utils::Modulo;

namespace {

constexpr std::array<std::uint16_t, 12> kQuarters = {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4};

// Kept: 24 and 31 December are holidays. Test: IsHolidayInGermany.Has24And31December
bool IsFixedHoliday(const utils::Ymd& date) {
  switch (date.month) {
    case 1:
    case 5:
      return date.day == 1;
    case 10:
      return date.day == 3;
    case 12:
      return (date.day >= 24 && date.day <= 26) || date.day == 31;
    default:
      return false;
  }
}

// Good Friday, Easter Monday, Ascension Day, Whit Monday.
bool IsHolidayByEaster(std::int32_t days) { return days == -2 || days == 1 || days == 39 || days == 50; }

DateParts Today() { return SplitDateTime(platform::Locale().Now()).date; }

}  // namespace

TJulianDate EasterSunday(std::int32_t year) {
  // The paschal full moon, in days after the end of February.
  std::int32_t moon = Modulo(234 - 11 * Modulo(year, 19), 30) + 21;
  if (moon > 48) --moon;
  // Kept: Easter has no century terms: it is exact from 1900 to 2099, and 27 March for 2100. Test:
  // EasterSunday.IsTheBareFormulaOutside
  const std::int32_t years_and_leap_days = CheckedAdd(year, year / 4);
  const std::int32_t weekday = Modulo(CheckedAdd(years_and_leap_days, moon + 1), 7);
  return YmdToJulianDate(year, 3, 1) + moon + 6 - weekday;
}

void EasterSundayYmd(std::int32_t year, std::uint16_t& month, std::uint16_t& day) {
  const utils::Ymd parts = utils::PartsOf(EasterSunday(year));
  month = parts.month;
  day = parts.day;
}

bool IsHolidayInGermany(TJulianDate date) {
  if (DayOfWeek(date) == kSunday) return true;
  const utils::Ymd parts = utils::PartsOf(date);
  return IsFixedHoliday(parts) || IsHolidayByEaster(date - EasterSunday(parts.year));
}

bool IsHolidayInGermanyYmd(std::int32_t year, std::uint16_t month, std::uint16_t day) {
  return IsHolidayInGermany(YmdToJulianDate(year, month, day));
}

std::uint16_t CurrentDay() { return static_cast<std::uint16_t>(Today().day); }

std::uint16_t CurrentMonth() { return static_cast<std::uint16_t>(Today().month); }

std::int32_t CurrentYear() { return Today().year; }

std::uint16_t CurrentQuarter() { return kQuarters[CurrentMonth() - 1u]; }

TJulianDate CurrentJulianDate() {
  const DateParts today = Today();
  return YmdToJulianDate(today.year, static_cast<std::uint16_t>(today.month),
                         static_cast<std::uint16_t>(today.day));
}

}  // namespace ravo::DIUtils

#include "month_sheet.h"

#include "month_names.h"
#include "text.h"
#include <ravo/DIUtils.h>

namespace tool {
namespace {

namespace utils = ravo::DIUtils;

constexpr std::size_t kCell = 4;

std::string PaddedNumber(std::int32_t number) {
  const std::string digits = std::to_string(number);
  return std::string(digits.size() < 2 ? 1 : 0, ' ') + digits;
}

bool IsMarked(utils::TJulianDate date, bool holidays_de) {
  constexpr std::int32_t kSunday = 6;
  return utils::DayOfWeek(date) == kSunday || (holidays_de && utils::IsHolidayInGermany(date));
}

std::string Cell(utils::TJulianDate date, utils::TJulianDate today, bool holidays_de) {
  const std::string day = PaddedNumber(utils::DayOfJulianDate(date));
  if (date == today) return "[" + day + "]";
  return " " + day + (IsMarked(date, holidays_de) ? "*" : " ");
}

// Trailing blanks of a line are dropped.
std::string Week(utils::TJulianDate monday, utils::TJulianDate today, bool holidays_de) {
  std::string line = PaddedNumber(utils::ISOWeekNumber(monday)) + " ";
  for (utils::TJulianDate date = monday; date < monday + 7; ++date) {
    const bool inside = utils::FirstDayOfMonth(date) == utils::FirstDayOfMonth(today);
    line += inside ? Cell(date, today, holidays_de) : std::string(kCell, ' ');
  }
  return line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
}

}  // namespace

std::string MonthSheet(const ravo::DateParts& day, bool holidays_de) {
  const utils::TJulianDate today = utils::YmdToJulianDate(day.year, static_cast<std::uint16_t>(day.month),
                                                          static_cast<std::uint16_t>(day.day));
  std::string sheet = MonthName(day.month) + " " + std::to_string(day.year) + "\n    " +
                      Text("Mo  Tu  We  Th  Fr  Sa  Su") + "\n";
  const utils::TJulianDate last = utils::LastDayOfMonth(today);
  for (utils::TJulianDate monday = utils::FirstDayOfWeek(utils::FirstDayOfMonth(today)); monday <= last;
       monday += 7)
    sheet += Week(monday, today, holidays_de);
  return sheet;
}

}  // namespace tool

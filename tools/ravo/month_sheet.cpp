#include "month_sheet.h"

#include <ravo/DIUtils.h>

#include <array>

namespace tool {
namespace {

namespace utils = ravo::DIUtils;

constexpr std::size_t kCell = 4;

constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};

std::string Padded(std::int32_t number) {
  const std::string digits = std::to_string(number);
  return std::string(digits.size() < 2 ? 1 : 0, ' ') + digits;
}

std::string Cell(utils::TJulianDate date, utils::TJulianDate marked) {
  const std::string day = Padded(utils::DayOfJulianDate(date));
  if (date == marked) return "[" + day + "]";
  return " " + day + (utils::IsHolidayInGermany(date) ? "*" : " ");
}

// Trailing blanks of a line are dropped.
std::string Week(utils::TJulianDate monday, utils::TJulianDate marked) {
  std::string line = Padded(utils::ISOWeekNumber(monday)) + " ";
  for (utils::TJulianDate date = monday; date < monday + 7; ++date) {
    const bool inside = utils::FirstDayOfMonth(date) == utils::FirstDayOfMonth(marked);
    line += inside ? Cell(date, marked) : std::string(kCell, ' ');
  }
  return line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
}

}  // namespace

std::string MonthSheet(const ravo::DateParts& day) {
  const utils::TJulianDate marked = utils::YmdToJulianDate(day.year, static_cast<std::uint16_t>(day.month),
                                                           static_cast<std::uint16_t>(day.day));
  std::string sheet = std::string(kMonths[static_cast<std::size_t>(day.month - 1)]) + " " +
                      std::to_string(day.year) + "\n    Mo  Tu  We  Th  Fr  Sa  Su\n";
  const utils::TJulianDate last = utils::LastDayOfMonth(marked);
  for (utils::TJulianDate monday = utils::FirstDayOfWeek(utils::FirstDayOfMonth(marked)); monday <= last;
       monday += 7)
    sheet += Week(monday, marked);
  return sheet;
}

}  // namespace tool

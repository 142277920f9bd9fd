#include "commands.h"
#include "json_text.h"
#include "month_sheet.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;
namespace utils = ravo::DIUtils;

constexpr std::array<const char*, 7> kWeekdays = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                  "Friday", "Saturday", "Sunday"};

struct DateOptions {
  std::string date;
  int month = 0;
  int year = 0;
  bool calendar = false;
  bool holidays = false;
  bool json = false;
};

// YYYY-MM-DD, optionally followed by a blank or "T" and HH:MM, HH:MM:SS or HH:MM:SS.mmm.
std::optional<ravo::DateTime> ParseDate(const std::string& text) {
  ravo::DateTimeParts parts;
  char between = ' ';
  int used = 0;
  const int fields =
      std::sscanf(text.c_str(), "%4d-%2d-%2d%n%c%2d:%2d%n:%2d%n.%3d%n", &parts.date.year, &parts.date.month,
                  &parts.date.day, &used, &between, &parts.time.hour, &parts.time.minute, &used,
                  &parts.time.second, &used, &parts.time.millisecond, &used);
  const bool whole = static_cast<std::size_t>(used) == text.size() && (between == ' ' || between == 'T');
  if (!whole || fields == 4 || fields == 5 || fields < 3) return {};
  try {
    return ravo::EncodeDateTime(parts);
  } catch (const ravo::Error&) {
    return {};
  }
}

std::string CheckDate(const std::string& text) {
  return ParseDate(text) ? std::string() : "'" + text + "' is not a date YYYY-MM-DD [HH:MM:SS.mmm]";
}

ravo::DateTime Moved(const DateOptions& options) {
  ravo::DateTime date = ParseDate(options.date).value_or(0);
  for (int i = 0; i < std::abs(options.month); ++i) date = common::ChangeMonth(date, options.month);
  for (int i = 0; i < std::abs(options.year); ++i) date = common::ChangeYear(date, options.year);
  return date;
}

utils::TJulianDate JulianDateOf(const ravo::DateParts& parts) {
  return utils::YmdToJulianDate(parts.year, static_cast<std::uint16_t>(parts.month),
                                static_cast<std::uint16_t>(parts.day));
}

// "2024-W13": the year of a week is that of its Thursday.
std::string WeekText(utils::TJulianDate date) {
  const std::int32_t year = utils::YearOfJuilanDate(utils::FirstDayOfWeek(date) + 3);
  const std::string week = std::to_string(utils::ISOWeekNumber(date));
  const std::string digits = std::to_string(year);
  return std::string(4 - std::min<std::size_t>(4, digits.size()), '0') + digits + "-W" +
         (week.size() < 2 ? "0" : "") + week;
}

// All holidays of the year except Sundays.
Json Holidays(std::int32_t year) {
  constexpr std::int32_t kSunday = 6;
  Json dates = Json::array();
  const utils::TJulianDate last = utils::YmdToJulianDate(year, 12, 31);
  for (utils::TJulianDate date = utils::YmdToJulianDate(year, 1, 1); date <= last; ++date) {
    if (utils::DayOfWeek(date) != kSunday && utils::IsHolidayInGermany(date))
      dates.push_back(utils::JulianDateToIsoDateA(date));
  }
  return dates;
}

Json Describe(ravo::DateTime date) {
  const ravo::DateParts parts = ravo::SplitDateTime(date).date;
  ravo::DateTime first = 0;
  ravo::DateTime last = 0;
  common::FirstLastDay(parts.year, parts.month, first, last);
  const utils::TJulianDate day = JulianDateOf(parts);
  return {{"date", ravo::ToUtf8(common::DateToSQLString(date))},
          {"time", ravo::ToUtf8(common::TimeToSQLString(date))},
          {"date-time", ravo::ToUtf8(common::DateTimeToSQLString(date))},
          {"month-first", ravo::ToUtf8(common::DateToSQLString(first))},
          {"month-last", ravo::ToUtf8(common::DateToSQLString(last))},
          {"month-days", common::DaysPerMonth(parts.year, parts.month)},
          {"leap-year", common::IsLeapYear(parts.year)},
          {"julian-day", day},
          {"weekday", kWeekdays[static_cast<std::size_t>(utils::DayOfWeek(day))]},
          {"iso-week", WeekText(day)},
          {"easter", utils::JulianDateToIsoDateA(utils::EasterSunday(parts.year))},
          {"holiday", utils::IsHolidayInGermany(day)}};
}

// A list is written with blanks between its elements.
std::string Value(const Json& value) {
  if (!value.is_array()) return value.is_string() ? value.get<std::string>() : value.dump();
  std::string text;
  for (const Json& item : value) text += (text.empty() ? "" : " ") + Value(item);
  return text;
}

void Run(const DateOptions& options, Outcome& outcome) {
  try {
    const ravo::DateTime date = Moved(options);
    const ravo::DateParts parts = ravo::SplitDateTime(date).date;
    if (options.calendar) {
      outcome.out = MonthSheet(parts);
      return;
    }
    Json facts = Describe(date);
    if (options.holidays) facts["holidays"] = Holidays(parts.year);
    if (options.json) {
      outcome.out = JsonText(facts);
      return;
    }
    for (const auto& [name, value] : facts.items()) outcome.out += name + "\t" + Value(value) + "\n";
  } catch (const ravo::Error&) {
    outcome.err = "ravo: the date is outside the years 1 to 9999\n";
    outcome.answer = Answer::No;
  }
}

constexpr const char* kDateFooter =
    "Dates and times are shown in the form of SQL statements. Holidays are those of the suite's\n"
    "list, which has German ones; Easter is exact for 1900 to 2099.\n"
    "\n"
    "Exit status: 0, or 1 if a step leaves the years 1 to 9999, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo date 2011-01-31 --month 1                     28 February\n"
    "  ravo date \"2010-12-31 13:05:09.007\"                20101231 13:05:09:007\n"
    "  ravo date 2012-02-29 --year -1 --json\n"
    "  ravo date 2024-03-29 --calendar                    March 2024, week by week\n"
    "  ravo date 2024-01-01 --holidays\n";

}  // namespace

void AddDateCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand(
      "date", "Shows the facts of a day, steps months and years, prints a month, lists holidays");
  const auto options = std::make_shared<DateOptions>();
  command->add_option("DATE", options->date, "YYYY-MM-DD, optionally with a time HH:MM:SS.mmm")
      ->required()
      ->check(CLI::Validator(CheckDate, ""));
  command->add_option("--month", options->month, "Months to step forward, or back if negative")
      ->check(CLI::Range(-120000, 120000));
  command->add_option("--year", options->year, "Years to step forward, or back if negative")
      ->check(CLI::Range(-10000, 10000));
  CLI::Option* calendar = command->add_flag("--calendar", options->calendar,
                                            "Print the month instead: the day in brackets, holidays with *");
  command->add_flag("--holidays", options->holidays, "Also list the year's holidays, except Sundays")
      ->excludes(calendar);
  command->add_flag("--json", options->json, "Write JSON")->excludes(calendar);
  command->footer(kDateFooter);
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

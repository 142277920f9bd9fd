#include "commands.h"
#include "json_text.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;

struct DateOptions {
  std::string date;
  int month = 0;
  int year = 0;
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
  return ParseDate(text) ? std::string() : "'" + text + "' is no date YYYY-MM-DD [HH:MM:SS.mmm]";
}

ravo::DateTime Moved(const DateOptions& options) {
  ravo::DateTime date = ParseDate(options.date).value_or(0);
  for (int i = 0; i < std::abs(options.month); ++i) date = common::ChangeMonth(date, options.month);
  for (int i = 0; i < std::abs(options.year); ++i) date = common::ChangeYear(date, options.year);
  return date;
}

Json Describe(ravo::DateTime date) {
  const ravo::DateParts parts = ravo::SplitDateTime(date).date;
  ravo::DateTime first = 0;
  ravo::DateTime last = 0;
  common::FirstLastDay(parts.year, parts.month, first, last);
  return {{"date", ravo::ToUtf8(common::DateToSQLString(date))},
          {"time", ravo::ToUtf8(common::TimeToSQLString(date))},
          {"date-time", ravo::ToUtf8(common::DateTimeToSQLString(date))},
          {"month-first", ravo::ToUtf8(common::DateToSQLString(first))},
          {"month-last", ravo::ToUtf8(common::DateToSQLString(last))},
          {"month-days", common::DaysPerMonth(parts.year, parts.month)},
          {"leap-year", common::IsLeapYear(parts.year)}};
}

std::string Value(const Json& value) { return value.is_string() ? value.get<std::string>() : value.dump(); }

void Run(const DateOptions& options, Outcome& outcome) {
  try {
    const Json facts = Describe(Moved(options));
    if (options.json) {
      outcome.out = JsonText(facts);
      return;
    }
    for (const auto& [name, value] : facts.items()) outcome.out += name + "\t" + Value(value) + "\n";
  } catch (const ravo::Error&) {
    outcome.err = "ravo: the date leaves the years 1 to 9999\n";
    outcome.answer = Answer::No;
  }
}

constexpr const char* kFooter =
    "Dates and times are shown as they are written into SQL statements.\n"
    "\n"
    "Exit status: 0, or 1 where a step leaves the years 1 to 9999, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo date 2011-01-31 --month 1                     28 February\n"
    "  ravo date \"2010-12-31 13:05:09.007\"                20101231 13:05:09:007\n"
    "  ravo date 2012-02-29 --year -1 --json\n";

}  // namespace

void AddDateCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("date", "Steps accounting periods and writes SQL dates");
  const auto options = std::make_shared<DateOptions>();
  command->add_option("DATE", options->date, "YYYY-MM-DD, with a time HH:MM:SS.mmm if wanted")
      ->required()
      ->check(CLI::Validator(CheckDate, ""));
  command->add_option("--month", options->month, "Months to step on, or back when negative")
      ->check(CLI::Range(-120000, 120000));
  command->add_option("--year", options->year, "Years to step on, or back when negative")
      ->check(CLI::Range(-10000, 10000));
  command->add_flag("--json", options->json, "Write JSON");
  command->footer(kFooter);
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

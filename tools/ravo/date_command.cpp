#include "commands.h"
#include "czech_day.h"
#include "date_input.h"
#include "date_steps.h"
#include "json_text.h"
#include "month_names.h"
#include "month_sheet.h"
#include "text.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>
#include <ravo/czech/holidays.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;
namespace czech = ravo::czech;
namespace utils = ravo::DIUtils;

struct DateOptions {
  std::string date = "today";
  std::string today;
  int month = 0;
  int year = 0;
  bool calendar = false;
  bool holidays_de = false;
  bool suite = false;
  bool json = false;
};

// What the suite's modules and the calendar say about one date.
struct DateAnswer {
  ravo::DateTimeParts when;
  ravo::DateParts easter;
};

struct BothAnswers {
  DateAnswer exact;
  std::optional<DateAnswer> suite;
};

std::string Digits(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string IsoDate(const ravo::DateParts& date) {
  return Digits(date.year, 4) + "-" + Digits(date.month, 2) + "-" + Digits(date.day, 2);
}

std::string IsoTime(const ravo::TimeParts& time) {
  return Digits(time.hour, 2) + ":" + Digits(time.minute, 2) + ":" + Digits(time.second, 2) + "." +
         Digits(time.millisecond, 3);
}

std::string IsoDateTime(const ravo::DateTimeParts& when) {
  return IsoDate(when.date) + " " + IsoTime(when.time);
}

ravo::DateParts PartsOfDay(utils::TJulianDate date) {
  std::int32_t year = 0;
  std::uint16_t month = 0;
  std::uint16_t day = 0;
  utils::JulianDateToYmd(date, year, month, day);
  return {year, month, day};
}

utils::TJulianDate JulianDateOf(const ravo::DateParts& parts) {
  return utils::YmdToJulianDate(parts.year, static_cast<std::uint16_t>(parts.month),
                                static_cast<std::uint16_t>(parts.day));
}

// "2024-W13": the year of a week is that of its Thursday.
std::string WeekText(utils::TJulianDate date) {
  const std::int32_t year = utils::YearOfJuilanDate(utils::FirstDayOfWeek(date) + 3);
  return Digits(year, 4) + "-W" + Digits(utils::ISOWeekNumber(date), 2);
}

// All German holidays of the year except Sundays.
Json HolidaysInGermany(std::int32_t year) {
  constexpr std::int32_t kSunday = 6;
  Json dates = Json::array();
  const utils::TJulianDate last = utils::YmdToJulianDate(year, 12, 31);
  for (utils::TJulianDate date = utils::YmdToJulianDate(year, 1, 1); date <= last; ++date) {
    if (utils::DayOfWeek(date) != kSunday && utils::IsHolidayInGermany(date))
      dates.push_back(IsoDate(PartsOfDay(date)));
  }
  return dates;
}

struct Fact {
  const char* key;    // for scripts
  const char* label;  // for people
  Json value;
};

std::vector<Fact> FactsOf(const DateAnswer& answer) {
  const ravo::DateParts& date = answer.when.date;
  const ravo::DateTime number = ravo::EncodeDateTime(answer.when);
  const utils::TJulianDate day = JulianDateOf(date);
  const int days = common::DaysPerMonth(date.year, date.month);
  return {{"date", ToTranslate("date"), IsoDate(date)},
          {"time", ToTranslate("time"), IsoTime(answer.when.time)},
          {"weekday", ToTranslate("weekday"), WeekdayKey(utils::DayOfWeek(day))},
          {"iso-week", ToTranslate("ISO week"), WeekText(day)},
          {"month-first", ToTranslate("first of the month"), IsoDate({date.year, date.month, 1})},
          {"month-last", ToTranslate("last of the month"), IsoDate({date.year, date.month, days})},
          {"month-days", ToTranslate("days in the month"), days},
          {"leap-year", ToTranslate("leap year"), common::IsLeapYear(date.year)},
          {"easter", ToTranslate("Easter Sunday"), IsoDate(answer.easter)},
          {"julian-day", ToTranslate("Julian day"), day},
          {"sql-date", ToTranslate("date in SQL"), ravo::ToUtf8(common::DateToSQLString(number))},
          {"sql-time", ToTranslate("time in SQL"), ravo::ToUtf8(common::TimeToSQLString(number))},
          {"sql-date-time", ToTranslate("both in SQL"), ravo::ToUtf8(common::DateTimeToSQLString(number))},
          {"holiday-de", ToTranslate("holiday in Germany"), utils::IsHolidayInGermany(day)}};
}

// A value for people; a list is written with blanks between its elements.
std::string ValueText(const Fact& fact, const Json& value) {
  if (value.is_boolean()) return value.get<bool>() ? Text("yes") : Text("no");
  if (std::string_view(fact.key) == "weekday") return Text(value.get<std::string>());
  if (!value.is_array()) return value.is_string() ? value.get<std::string>() : value.dump();
  std::string text;
  for (const Json& item : value) text += (text.empty() ? "" : " ") + item.get<std::string>();
  return text;
}

Json SuiteJson(const std::optional<DateAnswer>& suite) {
  if (!suite) return {{"date", nullptr}, {"time", nullptr}, {"easter", nullptr}};
  return {{"date", IsoDate(suite->when.date)},
          {"time", IsoTime(suite->when.time)},
          {"easter", IsoDate(suite->easter)}};
}

std::string FactsJson(const std::vector<Fact>& facts, const BothAnswers& answers) {
  Json json = Json::object();
  for (const Fact& fact : facts) json[fact.key] = fact.value;
  json["suite"] = SuiteJson(answers.suite);
  return JsonText(json);
}

std::string FactsText(const std::vector<Fact>& facts) {
  std::string text;
  for (const Fact& fact : facts) text += Text(fact.label) + "\t" + ValueText(fact, fact.value) + "\n";
  return text;
}

// Says where the two answers differ; `asked` is the one that is printed.
void TellDifferences(const DateAnswer& asked, const BothAnswers& answers, bool as_suite, Outcome& outcome) {
  const auto tell = [&](const std::string& message) { Complain(outcome, message, Answer::Yes); };
  if (!answers.suite) return tell(Text("the suite's modules have no date for this"));
  const DateAnswer& other = as_suite ? answers.exact : *answers.suite;
  if (other.when != asked.when)
    tell(Text(as_suite ? ToTranslate("the right date is {0}") : ToTranslate("the suite's modules give {0}"),
              {IsoDateTime(other.when)}));
  if (other.when.date.year == asked.when.date.year && other.easter != asked.easter)
    tell(Text(as_suite ? ToTranslate("Easter is really on {0}")
                       : ToTranslate("the suite's modules put Easter on {0}"),
              {IsoDate(other.easter)}));
}

void Answered(const DateAnswer& asked, const BothAnswers& answers, const DateOptions& options,
              Outcome& outcome) {
  TellDifferences(asked, answers, options.suite, outcome);
  if (options.calendar) {
    outcome.out = MonthSheet(asked.when.date, options.holidays_de);
    return;
  }
  std::vector<Fact> facts = FactsOf(asked);
  if (options.holidays_de)
    facts.push_back(
        {"holidays-de", ToTranslate("holidays in Germany"), HolidaysInGermany(asked.when.date.year)});
  outcome.out = options.json ? FactsJson(facts, answers) : FactsText(facts);
}

std::optional<DateAnswer> SuiteAnswer(const DateInput& input) {
  try {
    const ravo::DateTimeParts when = MovedAsSuite(input.start, input.steps);
    return DateAnswer{when, PartsOfDay(utils::EasterSunday(when.date.year))};
  } catch (const ravo::ConvertError&) {
    return {};
  }
}

void Describe(const DateInput& input, const DateOptions& options, Outcome& outcome) {
  const ravo::DateTimeParts when = MovedExactly(input.start, input.steps);
  const BothAnswers answers{{when, czech::PartsOf(czech::EasterSunday(when.date.year))}, SuiteAnswer(input)};
  if (options.suite && !answers.suite) throw ravo::ConvertError(u"");
  Answered(options.suite ? *answers.suite : answers.exact, answers, options, outcome);
}

std::optional<DateInput> ReadOrTell(const std::string& text, const ravo::DateParts& today, Outcome& outcome) {
  auto read = ReadDate(text, today);
  if (auto* input = std::get_if<DateInput>(&read)) return std::move(*input);
  Complain(outcome, text + ": " + std::get<DateFault>(read).message, Answer::WrongUsage);
  return {};
}

// No value after a complaint.
std::optional<ravo::DateParts> TodayOf(const DateOptions& options, Outcome& outcome) {
  const ravo::DateParts today = czech::PartsOf(Today());
  if (options.today.empty()) return today;
  const std::optional<DateInput> given = ReadOrTell(options.today, today, outcome);
  return given ? std::optional(MovedExactly(given->start, given->steps).date) : std::nullopt;
}

void ShowDate(const DateOptions& options, Outcome& outcome) {
  const std::optional<ravo::DateParts> today = TodayOf(options, outcome);
  std::optional<DateInput> input = today ? ReadOrTell(options.date, *today, outcome) : std::nullopt;
  if (!input) return;
  if (options.month != 0) input->steps.push_back({DateStep::Unit::Months, options.month});
  if (options.year != 0) input->steps.push_back({DateStep::Unit::Years, options.year});
  Describe(*input, options, outcome);
}

void Run(const DateOptions& options, Outcome& outcome) {
  try {
    ShowDate(options, outcome);
  } catch (const ravo::ConvertError&) {
    Complain(outcome, Text("the date is outside the years 1 to 9999"), Answer::No);
  }
}

constexpr const char* kDateFooter = ToTranslate(
    "Dates are 2026-11-21, 21.11.2026, 21. 11. 2026, 20261121, dnes or today, zítra or tomorrow, včera or\n"
    "yesterday, each with steps of days, weeks, months or years after it: +14d, -2w, +1m, +1y. Steps\n"
    "alone start today. A day past the end of its month becomes the last one.\n"
    "\n"
    "The suite's modules step month by month, so 31 January and two months are 28 March there; they drop\n"
    "the time of day in such steps; and their Easter is right for 1900 to 2099. Where they give another\n"
    "answer, a line on standard error says so.\n"
    "\n"
    "Exit status: 0, or 1 if a step leaves the years 1 to 9999, 2 wrong usage or a text that is no date.\n"
    "\n"
    "Examples:\n"
    "  ravo date                                          today\n"
    "  ravo date 21.11.2026+14d                           when a bill of fourteen days falls due\n"
    "  ravo date 2011-01-31 --month 1                     28 February\n"
    "  ravo date \"2010-12-31 13:05:09.007\"                20101231 13:05:09:007\n"
    "  ravo date 2012-02-29 --year -1 --json\n"
    "  ravo date 2024-03-29 --calendar                    March 2024, week by week\n"
    "  ravo date 2024-01-01 --holidays-de\n");

}  // namespace

void AddDateCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command =
      program.add_subcommand("date", Text("Shows the facts of a day, steps from it, prints its month"));
  const auto options = std::make_shared<DateOptions>();
  command->add_option(Text("DATE"), options->date,
                      Text("A day, perhaps with a time HH:MM:SS.mmm and steps such as +14d"));
  command->add_option("--month", options->month, Text("Months to step forward, or back if negative"))
      ->check(CLI::Range(-120000, 120000));
  command->add_option("--year", options->year, Text("Years to step forward, or back if negative"))
      ->check(CLI::Range(-10000, 10000));
  command->add_option("--today", options->today, Text("The day to take for today"))->type_name(Text("DATE"));
  CLI::Option* calendar = command->add_flag(
      "--calendar", options->calendar, Text("Print the month instead: the day in brackets, Sundays with *"));
  command->add_flag("--holidays-de", options->holidays_de, Text("Also list or mark the holidays of Germany"));
  command->add_flag("--suite", options->suite, Text("Compute as the suite's modules do"));
  command->add_flag("--json", options->json, Text("Write JSON"))->excludes(calendar);
  command->footer(Text(kDateFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

#include "commands.h"
#include "czech_day.h"
#include "czech_kinds.h"
#include "json_text.h"
#include "text.h"
#include <ravo/czech/holidays.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

namespace czech = ravo::czech;

struct HolidayOptions {
  std::vector<std::string> days;
  bool json = false;
};

struct DaySpan {
  czech::Day first;
  czech::Day last;
};

// 1 to 9999, or 0.
int YearNamed(const std::string& text) {
  int year = 0;
  const char* const end = text.data() + text.size();
  const bool whole = std::from_chars(text.data(), end, year).ptr == end;
  return whole && year >= 1 && year <= 9999 ? year : 0;
}

std::string CheckYearOrDay(const std::string& text) {
  return YearNamed(text) != 0 ? std::string() : CheckDay(text);
}

DaySpan DaysOf(const HolidayOptions& options) {
  if (options.days.empty()) {
    const int year = czech::PartsOf(DayOrToday({})).year;
    return {czech::DayOf({year, 1, 1}), czech::DayOf({year, 12, 31})};
  }
  const auto edge = [](const std::string& text, int month, int day) {
    const int year = YearNamed(text);
    return year != 0 ? czech::DayOf({year, month, day}) : DayOrToday(text);
  };
  return {edge(options.days.front(), 1, 1), edge(options.days.back(), 12, 31)};
}

std::string_view HolidayName(const czech::Holiday& holiday) {
  return UserLanguage() == czech::Language::Czech ? holiday.czech : holiday.english;
}

struct HolidayLists {
  std::string text;
  Json json = Json::array();
};

void AddHolidays(czech::Day day, HolidayLists& lists) {
  const czech::HolidaysOfDay found = czech::HolidaysOn(day);
  for (const czech::Holiday* const holiday : std::span(found.rows).first(found.count)) {
    lists.text += DayText(day) + "\t" + WeekdayText(day) + "\t";
    lists.text.append(HolidayName(*holiday)).append("\t").append(holiday->law).append("\n");
    lists.json.push_back({{"date", DayText(day)},
                          {"czech", holiday->czech},
                          {"english", holiday->english},
                          {"law", holiday->law},
                          {"verified", found.verified}});
  }
}

void Run(const HolidayOptions& options, Outcome& outcome) {
  const DaySpan span = DaysOf(options);
  if (span.last < span.first)
    return Complain(outcome, Text("{0} is before {1}", {DayText(span.last), DayText(span.first)}),
                    Answer::WrongUsage);
  HolidayLists lists;
  for (czech::Day day = span.first; day <= span.last; ++day.number) AddHolidays(day, lists);
  // The first day counts, too.
  const std::int32_t working =
      czech::WorkingDaysBetween(span.first, span.last).value + (czech::IsWorkingDay(span.first) ? 1 : 0);
  if (lists.json.empty()) outcome.answer = Answer::No;
  outcome.out = lists.text + TextOf(working, "one working day", "{0} working days") + "\n";
  if (span.first < czech::kFirstVerifiedDay)
    outcome.out += Text("holidays before 2000 are not verified") + "\n";
  if (options.json) outcome.out = JsonText({{"holidays", lists.json}, {"workingDays", working}});
}

constexpr const char* kHolidaysFooter = ToTranslate(
    "Holidays are those of law 245/2000 and its changes, with the law that named each, and before 9 August\n"
    "2000 those of law 93/1951; those before 2000 are not verified, and there are none before 1993. Working "
    "days are Monday to Friday without them, and\n"
    "both edges count.\n"
    "\n"
    "Exit status: 0 there are holidays, 1 there are none, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo holidays 2026\n"
    "  ravo holidays 2026-04-03                           Good Friday; status 0\n"
    "  ravo holidays 2026-12-01 2026-12-31                those of December, and its working days\n");

}  // namespace

void AddHolidaysCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command =
      program.add_subcommand("holidays", Text("Lists Czech holidays and counts working days"));
  command->alias("svatky");
  const auto options = std::make_shared<HolidayOptions>();
  command
      ->add_option(Text("DATE"), options->days,
                   Text("A year or a day, or the first and the last; this year by default"))
      ->expected(0, 2)
      ->check(CLI::Validator(CheckYearOrDay, ""));
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kHolidaysFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

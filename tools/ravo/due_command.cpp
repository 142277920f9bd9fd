#include "commands.h"
#include "czech_day.h"
#include "json_text.h"
#include "text.h"
#include <ravo/czech/holidays.h>
#include <ravo/czech/reason.h>

#include <memory>
#include <string>

namespace tool {
namespace {

namespace czech = ravo::czech;

struct DueOptions {
  std::string date;
  int days = 0;
  int months = 0;
  std::string on;
  bool json = false;
};

czech::Parsed<czech::Term> TermOf(const DueOptions& options) {
  const czech::Day from = DayOrToday(options.date);
  return options.months != 0 ? czech::TermInMonths(from, options.months)
                             : czech::TermInDays(from, options.days);
}

// Why the term ends on another day than the one it is counted to, and whether that is certain.
std::string TermNotes(const czech::Term& term) {
  std::string notes;
  if (term.due != term.counted) {
    notes += Text("{0} {1} is no working day", {WeekdayText(term.counted), DayText(term.counted)}) + "\n";
  }
  if (!term.verified) notes += Text("holidays before 2000 are not verified") + "\n";
  return notes;
}

Json TermJson(const czech::Term& term) {
  return {{"due", DayText(term.due)}, {"counted", DayText(term.counted)}, {"verified", term.verified}};
}

void Run(const DueOptions& options, Outcome& outcome) {
  const auto term = TermOf(options);
  if (!term) {
    return Complain(outcome, Text("the term leaves the years 1 to 9999"), Answer::WrongUsage);
  }
  Json json = TermJson(term.value);
  outcome.out = DayText(term.value.due) + "\t" + WeekdayText(term.value.due) + "\n" + TermNotes(term.value);
  if (!options.on.empty()) {
    const std::int32_t overdue = czech::DaysOverdue(term.value.due, DayOrToday(options.on));
    if (overdue > 0) outcome.answer = Answer::No;
    outcome.out += TextOf(overdue, "one day overdue", "{0} days overdue") + "\n";
    json["overdue"] = overdue;
  }
  if (options.json) outcome.out = JsonText(json);
}

constexpr const char* kDueFooter = ToTranslate(
    "The day of the event does not count. A term that would end on a Saturday, a Sunday or a Czech holiday\n"
    "ends on the next working day (civil code, sections 605 and 607). A day of payment that a contract "
    "names\n"
    "is not moved by this rule.\n"
    "\n"
    "Exit status: 0, or 1 if the day of --on is later, 2 wrong usage or a term outside the years 1 to 9999.\n"
    "\n"
    "Examples:\n"
    "  ravo due 2026-11-07 --days 14                      2026-11-23, because the 21st is a Saturday\n"
    "  ravo due 31.1.2026 --months 1                      2026-03-02\n"
    "  ravo due 2026-11-07 --days 14 --on 2026-12-01      8 days overdue\n"
    "  ravo due 2026-12-24                                the next working day\n");

}  // namespace

void AddDueCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("due", Text("Tells when a term ends, by Czech working days"));
  command->alias("splatnost");
  const auto options = std::make_shared<DueOptions>();
  command
      ->add_option(Text("DATE"), options->date,
                   Text("The day of the event, such as 2026-11-21 or 21.11.2026"))
      ->required()
      ->check(CLI::Validator(CheckDay, ""));
  CLI::Option* days = command->add_option("--days", options->days, Text("The term in days"));
  command->add_option("--months", options->months, Text("The term in months"))->excludes(days);
  command->add_option("--on", options->on, Text("Tell how many days the term is overdue on this day"))
      ->type_name(Text("DATE"))
      ->check(CLI::Validator(CheckDay, ""));
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kDueFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

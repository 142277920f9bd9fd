#include "check_file.h"
#include "checks.h"
#include "commands.h"
#include "czech_day.h"
#include "czech_kinds.h"
#include "input_lines.h"
#include "json_array.h"
#include "kind_lines.h"
#include "nearest.h"
#include "output_pieces.h"
#include "program_values.h"
#include "text.h"
#include "value_reasons.h"
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tool {
namespace {

struct CheckOptions {
  CzechCheck czech;
  bool suite = false;
  std::string kind;
  std::vector<std::string> values;
  std::vector<std::string> files;
  std::vector<std::string> columns;
  std::string delimiter;
  std::string encoding;
  std::string rejects;
  std::string clean;
  std::size_t limit = std::numeric_limits<std::size_t>::max();
  unsigned threads = 0;
  bool allow_empty = false;
  bool json = false;
};

std::vector<std::string> AllKinds() {
  std::vector<std::string> names;
  for (const CheckKind& kind : CzechKinds()) names.emplace_back(kind.name);
  for (const CheckKind& kind : CheckKinds()) {
    if (std::ranges::find(names, kind.name) == names.end()) names.emplace_back(kind.name);
  }
  return names;
}

std::string AllKindNames() {
  std::string list;
  for (const std::string& name : AllKinds()) list.append(list.empty() ? "" : ", ").append(name);
  return list;
}

// The country's rule of this name, or the suite's where the country has no rule or the suite's is asked for.
const CheckKind* FindKind(const std::string& name, bool suite) {
  const CheckKind* const czech = suite ? nullptr : FindCzechKind(name);
  return czech ? czech : FindCheckKind(name);
}

std::string CheckKindName(const std::string& name) {
  if (FindKind(name, false)) return {};
  const std::string meant = DidYouMean(name, AllKinds());
  return Text("'{0}' is not a kind; kinds are {1}", {name, AllKindNames()}) +
         (meant.empty() ? "" : ". " + meant);
}

ColumnRequest ColumnOf(const std::string& text, bool suite) {
  const std::size_t equals = text.rfind('=');
  if (equals == std::string::npos) return {};
  return {text.substr(0, equals), FindKind(text.substr(equals + 1), suite)};
}

std::string CheckColumn(const std::string& text) {
  if (ColumnOf(text, false).kind) return {};
  return Text("'{0}' is not NAME=KIND; kinds are {1}", {text, AllKindNames()});
}

Json ValueJson(const std::string& value, const CheckKind& kind, const std::optional<ValueReason>& reason) {
  return {{"value", value},
          {"kind", kind.name},
          {"valid", !reason},
          {"reason", reason ? Json(reason->code) : Json()},
          {"position", reason && reason->position > 0 ? Json(reason->position) : Json()},
          {"remark", reason ? reason->message : ""}};
}

void CheckSuiteValues(const CheckOptions& options, Outcome& outcome) {
  const CheckKind& kind = *FindCheckKind(options.kind);
  JsonArray answers(outcome);
  ForEachValue(options.values, [&](const std::string& value) {
    const std::u16string text = ravo::FromUtf8(value);
    std::optional<ValueReason> reason;
    if (!kind.check(text).valid) reason = WhyInvalid(kind, text);
    if (reason) outcome.answer = Answer::No;
    if (options.json) return answers.Add(ValueJson(value, kind, reason));
    const std::string verdict = reason ? Text("not valid: {0}", {reason->message}) : Text("valid");
    AddOutput(outcome, value + "\t" + verdict + "\n");
  });
  if (options.json) answers.Finish();
  const std::string note = options.suite ? std::string() : SuiteRuleNote(kind);
  if (!note.empty()) Complain(outcome, options.kind + ": " + note, Answer::Yes);
}

// The suite's rule if it is asked for or the country has none.
void CheckValues(const CheckOptions& options, Outcome& outcome) {
  if (FindKind(options.kind, options.suite) == nullptr) {
    throw CLI::ValidationError(Text("the suite has no rule for {0}", {options.kind}));
  }
  if (options.suite || !FindCzechKind(options.kind)) return CheckSuiteValues(options, outcome);
  CzechCheck check = options.czech;
  check.kind = options.kind;
  check.values = options.values;
  check.json = options.json;
  CheckCzechValues(check, outcome);
}

std::string CheckOutputName(const std::string& name) {
  if (name.empty()) return Text("the name of the output file is empty");
  return name == "-" ? Text("standard output has the findings; name a file") : std::string();
}

TableJob JobOf(const CheckOptions& options) {
  TableJob job;
  job.files = options.files;
  for (const std::string& column : options.columns) job.columns.push_back(ColumnOf(column, options.suite));
  job.delimiter = DelimiterOf(options.delimiter);
  job.encoding = TableEncodingOf(options.encoding);
  job.allow_empty = options.allow_empty;
  job.json = options.json;
  job.limit = options.limit;
  job.rejects = options.rejects;
  job.clean = options.clean;
  job.threads = options.threads;
  return job;
}

void Run(const CheckOptions& options, Outcome& outcome) {
  const bool values = !options.values.empty();
  const bool file = !options.files.empty();
  if (values == file) throw CLI::ValidationError(Text("give a kind and values, or --csv and --column"));
  if (file && options.columns.empty()) throw CLI::ValidationError(Text("--csv needs at least one --column"));
  if (!file) return CheckValues(options, outcome);
  outcome.answer = CheckTables(JobOf(options));
}

std::string CheckFooter() {
  return Text("Kinds by the country's rules:") + "\n" + KindLines(CzechKinds()) + "\n" +
         Text("Kinds by the suite's rules, for which --suite asks if there are both:") + "\n" +
         KindLines(CheckKinds()) + "\n" +
         Text(
             "Exit status: 0 nothing found; 1 findings; 2 wrong usage, or some of the work could not be "
             "done.\n"
             "\n"
             "Examples:\n"
             "  ravo check ico 04625781 \"IČ: 270 82 440\"\n"
             "  ravo check rc 880125/1680 --explain --on today\n"
             "  ravo check account 19-2000145399/0800 --list built-in\n"
             "  ravo check banka 19-2000145399/0800 --suite\n"
             "  ravo check ean 4006381333931 400638133393\n"
             "  ravo check --csv samples/ledger.csv --column \"Účet MD=ucet\" --column VS=vs "
             "--allow-empty\n");
}

void AddOutput(CLI::App& command, std::string& name, CLI::Option* file, const char* option,
               const std::string& help) {
  command.add_option(option, name, help)
      ->type_name(Text("FILE"))
      ->check(CLI::Validator(CheckOutputName, ""))
      ->needs(file);
}

void AddTableOptions(CLI::App& command, CheckOptions& options, CLI::Option* file) {
  AddDelimiterOption(command, options.delimiter)->needs(file);
  AddTableEncodingOption(command, options.encoding)->needs(file);
  command.add_flag("--allow-empty", options.allow_empty, Text("Skip empty fields"))->needs(file);
  command.add_option("--limit", options.limit, Text("Write no more findings than this"))
      ->type_name("N")
      ->check(AtLeast(0))
      ->needs(file);
  AddOutput(command, options.rejects, file, "--rejects", Text("Write the rows with findings to this file"));
  AddOutput(command, options.clean, file, "--clean",
            Text("Write all but the rows with findings to this file"));
  command
      .add_option("--threads", options.threads,
                  Text("Use so many threads; by default one for each processor"))
      ->type_name("N")
      ->check(AtLeast(0))
      ->needs(file);
}

void AddRuleOptions(CLI::App& command, CheckOptions& options) {
  command.add_flag("--suite", options.suite, Text("Check as the suite's modules do"));
  command.add_flag("--explain", options.czech.explain,
                   Text("Also tell the rule, the code and what a value means"));
  CLI::Option* list = command.add_option(
      "--list", options.czech.list,
      Text("Look banks up in this list, a file of the central bank's CSV form, or built-in"));
  list->type_name(Text("FILE"));
  command
      .add_option("--list-date", options.czech.list_date,
                  Text("The day of a list in a file; today by default"))
      ->type_name(Text("DATE"))
      ->check(CLI::Validator(CheckDay, ""))
      ->needs(list);
  command.add_option("--on", options.czech.on, Text("Refuse dates of birth after this day"))
      ->type_name(Text("DATE"))
      ->check(CLI::Validator(CheckDay, ""));
}

}  // namespace

void AddCheckCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand(
      "check", Text("Checks accounts, bank accounts, payment references and EAN codes"));
  // A path may begin with "/".
  command->allow_windows_style_options(false);
  const auto options = std::make_shared<CheckOptions>();
  CLI::Option* kind =
      command->add_option(Text("KIND"), options->kind, Text("The kind of the values: {0}", {AllKindNames()}));
  kind->check(CLI::Validator(CheckKindName, ""));
  CLI::Option* values =
      command->add_option(Text("VALUE"), options->values,
                          Text("The values to check; - reads them from standard input, one in a line"));
  CLI::Option* file =
      command->add_option("--csv", options->files,
                          Text("Check tables whose first row has the column names; - is standard input"));
  file->type_name(Text("FILE"))->excludes(kind)->excludes(values);
  command
      ->add_option("--column", options->columns,
                   Text("A column, by name or number, and the kind of its values; may be repeated"))
      ->type_name(Text("NAME=KIND"))
      ->check(CLI::Validator(CheckColumn, ""))
      ->needs(file);
  AddTableOptions(*command, *options, file);
  AddRuleOptions(*command, *options);
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(CheckFooter());
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

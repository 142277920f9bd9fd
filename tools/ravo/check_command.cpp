#include "check_file.h"
#include "checks.h"
#include "commands.h"
#include "csv_reader.h"
#include "czech_day.h"
#include "czech_kinds.h"
#include "json_text.h"
#include "kind_lines.h"
#include "text.h"
#include <ravo/RavoInterface.h>

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

struct CheckOptions {
  CzechCheck czech;
  bool suite = false;
  std::string kind;
  std::vector<std::string> values;
  std::string file;
  std::vector<std::string> columns;
  std::string delimiter;
  bool allow_empty = false;
  bool json = false;
};

std::string AllKindNames(std::string_view between) {
  std::string names;
  for (const CheckKind& kind : CzechKinds()) names.append(kind.name).append(between);
  for (const CheckKind& kind : CheckKinds()) {
    const bool is_named = FindCzechKind(kind.name) && FindCzechKind(kind.name)->name == kind.name;
    if (!is_named) names.append(kind.name).append(between);
  }
  return names.substr(0, names.size() - between.size());
}

// The rule of this name: the country's, unless there is none or the suite's is asked for.
const CheckKind* FindKind(const std::string& name, bool suite) {
  const CheckKind* const czech = suite ? nullptr : FindCzechKind(name);
  return czech ? czech : FindCheckKind(name);
}

std::string CheckKindName(const std::string& name) {
  return FindKind(name, false) ? std::string()
                               : "'" + name + "' is not a kind; kinds are " + AllKindNames(", ");
}

ColumnCheck ColumnOf(const std::string& text, bool suite) {
  const std::size_t equals = text.rfind('=');
  if (equals == std::string::npos) return {};
  return {text.substr(0, equals), FindKind(text.substr(equals + 1), suite)};
}

std::string CheckColumn(const std::string& text) {
  if (ColumnOf(text, false).kind) return {};
  return "'" + text + "' is not NAME=KIND; kinds are " + AllKindNames(", ");
}

void CheckSuiteValues(const CheckOptions& options, Outcome& outcome) {
  const CheckKind& kind = *FindCheckKind(options.kind);
  Json answers = Json::array();
  for (const std::string& value : options.values) {
    const Verdict verdict = kind.check(ravo::FromUtf8(value));
    if (!verdict.valid) outcome.answer = Answer::No;
    outcome.out += value + "\t" + (verdict.valid ? "valid" : "not valid");
    outcome.out += verdict.remark.empty() ? "\n" : ": " + verdict.remark + "\n";
    answers.push_back({{"value", value}, {"valid", verdict.valid}, {"remark", verdict.remark}});
  }
  if (options.json) outcome.out = JsonText(answers);
}

// The suite's rule if it is asked for or the country has none.
void CheckValues(const CheckOptions& options, Outcome& outcome) {
  if (FindKind(options.kind, options.suite) == nullptr) {
    throw CLI::ValidationError(Text("check: the suite has no rule for {0}", {options.kind}));
  }
  if (options.suite || !FindCzechKind(options.kind)) return CheckSuiteValues(options, outcome);
  CzechCheck check = options.czech;
  check.kind = options.kind;
  check.values = options.values;
  check.json = options.json;
  CheckCzechValues(check, outcome);
}

std::string FileText(const FileCheck& result) {
  std::string text;
  for (const BadValue& bad : result.bad) {
    text += "line " + std::to_string(bad.line) + "\t" + result.columns[bad.column].name + "\t" + bad.value;
    text += bad.remark.empty() ? "\n" : "\t" + bad.remark + "\n";
  }
  text += std::to_string(result.rows) + " rows\n";
  for (const ColumnCheck& column : result.columns) {
    text += column.name + " (" + std::string(column.kind->name) + "): " + std::to_string(column.valid) +
            " valid, " + std::to_string(column.invalid) + " not\n";
  }
  return text;
}

Json FileJson(const std::string& file, const FileCheck& result) {
  Json columns = Json::array();
  for (const ColumnCheck& column : result.columns) {
    columns.push_back({{"name", column.name},
                       {"kind", column.kind->name},
                       {"valid", column.valid},
                       {"invalid", column.invalid}});
  }
  Json rows = Json::array();
  for (const BadValue& bad : result.bad) {
    rows.push_back({{"line", bad.line},
                    {"column", result.columns[bad.column].name},
                    {"value", bad.value},
                    {"remark", bad.remark}});
  }
  return {{"file", file}, {"rows", result.rows}, {"columns", columns}, {"bad", rows}};
}

void CheckWholeFile(const CheckOptions& options, Outcome& outcome) {
  std::vector<ColumnCheck> columns;
  for (const std::string& column : options.columns) columns.push_back(ColumnOf(column, options.suite));
  try {
    const char delimiter = options.delimiter.empty() ? '\0' : options.delimiter.front();
    const FileCheck result = CheckFile(options.file, std::move(columns), delimiter, options.allow_empty);
    outcome.out = options.json ? JsonText(FileJson(options.file, result)) : FileText(result);
    if (!result.bad.empty()) outcome.answer = Answer::No;
  } catch (const std::runtime_error& error) {
    outcome.err = "ravo: " + options.file + ": " + error.what() + "\n";
    outcome.answer = Answer::WrongUsage;
  }
}

void Run(const CheckOptions& options, Outcome& outcome) {
  const bool values = !options.values.empty();
  const bool file = !options.file.empty();
  if (values == file) throw CLI::RequiredError("check: either a kind and values, or --csv and --column");
  if (file && options.columns.empty()) throw CLI::RequiredError("check --csv: at least one --column");
  return file ? CheckWholeFile(options, outcome) : CheckValues(options, outcome);
}

std::string CheckFooter() {
  return Text("Kinds by the country's rules:") + "\n" + KindLines(CzechKinds()) + "\n" +
         Text("Kinds by the suite's rules, for which --suite asks if there are both:") + "\n" +
         KindLines(CheckKinds()) +
         "\n"
         "Exit status: 0 all values are valid, 1 a value is not, 2 wrong usage or an unusable file.\n"
         "\n"
         "Examples:\n"
         "  ravo check ico 04625781 \"IČ: 270 82 440\"\n"
         "  ravo check rc 880125/1680 --explain --on today\n"
         "  ravo check account 19-2000145399/0800 --list built-in\n"
         "  ravo check banka 19-2000145399/0800 --suite\n"
         "  ravo check ean 4006381333931 400638133393\n"
         "  ravo check --csv samples/ledger.csv --column \"Účet MD=ucet\" --column VS=vs --allow-empty\n";
}

void AddRuleOptions(CLI::App& command, CheckOptions& options) {
  command.add_flag("--suite", options.suite, Text("Check as the suite's modules do"));
  command.add_flag("--explain", options.czech.explain,
                   Text("Also tell the rule, the code and what a value means"));
  CLI::Option* list = command.add_option(
      "--list", options.czech.list,
      Text("Look banks up in this list, a file of the central bank's CSV form, or built-in"));
  list->type_name("FILE");
  command.add_option("--list-date", options.czech.list_date, Text("The day of the list; today by default"))
      ->type_name("DATE")
      ->check(CLI::Validator(CheckDay, ""))
      ->needs(list);
  command.add_option("--on", options.czech.on, Text("Refuse dates of birth after this day"))
      ->type_name("DATE")
      ->check(CLI::Validator(CheckDay, ""));
}

}  // namespace

void AddCheckCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command =
      program.add_subcommand("check", "Checks accounts, bank accounts, payment references and EAN codes");
  const auto options = std::make_shared<CheckOptions>();
  CLI::Option* kind =
      command->add_option("KIND", options->kind, "The kind of the values: " + AllKindNames(", "));
  kind->check(CLI::Validator(CheckKindName, ""));
  CLI::Option* values = command->add_option("VALUE", options->values, "The values to check");
  CLI::Option* file = command->add_option(
      "--csv", options->file, "Check a file (UTF-8 or Windows-1250) whose first row has the column names");
  file->type_name("FILE")->excludes(kind)->excludes(values);
  command
      ->add_option("--column", options->columns,
                   "A column to check and the kind of its values; may be repeated")
      ->type_name("NAME=KIND")
      ->check(CLI::Validator(CheckColumn, ""))
      ->needs(file);
  command->add_option("--delimiter", options->delimiter, "The delimiter between fields; detected by default")
      ->type_name("CHAR")
      ->check(CLI::IsMember({";", ",", "\t", "|"}))
      ->needs(file);
  command->add_flag("--allow-empty", options->allow_empty, "Skip empty fields")->needs(file);
  AddRuleOptions(*command, *options);
  command->add_flag("--json", options->json, "Write JSON");
  command->footer(CheckFooter());
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

#include "check_file.h"
#include "checks.h"
#include "commands.h"
#include "csv_reader.h"
#include "input_lines.h"
#include "json_text.h"
#include "kind_lines.h"
#include "tell.h"
#include "text.h"
#include "value_reasons.h"
#include <ravo/RavoInterface.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tool {
namespace {

struct CheckOptions {
  std::string kind;
  std::vector<std::string> values;
  std::string file;
  std::vector<std::string> columns;
  std::string delimiter;
  bool allow_empty = false;
  bool suite = false;
  bool json = false;
};

std::string CheckKindName(const std::string& name) {
  return FindCheckKind(name) ? std::string()
                             : "'" + name + "' is not a kind; kinds are " + CheckKindNames(", ");
}

ColumnCheck ColumnOf(const std::string& text) {
  const std::size_t equals = text.rfind('=');
  if (equals == std::string::npos) return {};
  return {text.substr(0, equals), FindCheckKind(text.substr(equals + 1))};
}

std::string CheckColumn(const std::string& text) {
  if (ColumnOf(text).kind) return {};
  return "'" + text + "' is not NAME=KIND; kinds are " + CheckKindNames(", ");
}

Json ValueJson(const std::string& value, const CheckKind& kind, const std::optional<ValueReason>& reason) {
  return {{"value", value},
          {"kind", kind.name},
          {"valid", !reason},
          {"reason", reason ? Json(reason->code) : Json()},
          {"position", reason && reason->position > 0 ? Json(reason->position) : Json()},
          {"remark", reason ? reason->message : ""}};
}

void CheckValues(const CheckOptions& options, Outcome& outcome) {
  const CheckKind& kind = *FindCheckKind(options.kind);
  Json answers = Json::array();
  for (const std::string& value : WithInputLines(options.values)) {
    const std::u16string text = ravo::FromUtf8(value);
    std::optional<ValueReason> reason;
    if (!kind.check(text).valid) reason = WhyInvalid(kind, text);
    if (reason) outcome.answer = Answer::No;
    if (options.json) answers.push_back(ValueJson(value, kind, reason));
    outcome.out += value + "\t" + (reason ? Text("not valid: {0}", {reason->message}) : Text("valid")) + "\n";
  }
  if (options.json) outcome.out = JsonText(answers);
  const std::string note = options.suite ? std::string() : SuiteRuleNote(kind);
  if (!note.empty()) Tell(outcome, "check", options.kind + ": " + note, Answer::Yes);
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
  for (const std::string& column : options.columns) columns.push_back(ColumnOf(column));
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
  return "Kinds:\n" + KindLines(CheckKinds()) +
         "\n"
         "Exit status: 0 all values are valid, 1 a value is not, 2 wrong usage or an unusable file.\n"
         "\n"
         "Examples:\n"
         "  ravo check banka 19-2000145399/0800\n"
         "  ravo check ean 4006381333931 400638133393\n"
         "  ravo check --csv samples/ledger.csv --column \"Účet MD=ucet\" --column VS=vs --allow-empty\n";
}

}  // namespace

void AddCheckCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command =
      program.add_subcommand("check", "Checks accounts, bank accounts, payment references and EAN codes");
  const auto options = std::make_shared<CheckOptions>();
  CLI::Option* kind =
      command->add_option("KIND", options->kind, "The kind of the values: " + CheckKindNames(", "));
  kind->check(CLI::Validator(CheckKindName, ""));
  CLI::Option* values = command->add_option(
      "VALUE", options->values, Text("The values to check; - reads them from standard input, one in a line"));
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
  command->add_flag("--suite", options->suite,
                    Text("Check by the suite's rules and say nothing about how they differ"));
  command->add_flag("--json", options->json, "Write JSON");
  command->footer(CheckFooter());
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

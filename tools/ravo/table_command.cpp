#include "columns.h"
#include "commands.h"
#include "json_text.h"
#include "nearest.h"
#include "text.h"
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

struct TableOptions {
  std::vector<std::string> ids;
  std::string module;
  bool all = false;
  bool json = false;
};

std::optional<std::int32_t> Identifier(std::string_view text) {
  std::int32_t id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return id;
}

std::string CheckIdentifier(const std::string& text) {
  return Identifier(text) ? std::string()
                          : Text("'{0}' is not a table identifier, which is a number", {text});
}

std::vector<std::string> ModuleKeys() {
  std::vector<std::string> keys;
  for (const ravo::TableModule module : ravo::TableModules()) keys.emplace_back(ravo::TableModuleKey(module));
  return keys;
}

std::string ModuleNames() { return CLI::detail::join(ModuleKeys(), ", "); }

std::optional<ravo::TableModule> ModuleNamed(std::string_view name) {
  const std::u16string wanted = ravo::FromUtf8(name);
  for (const ravo::TableModule module : ravo::TableModules()) {
    if (ravo::SameAsciiText(wanted, ravo::FromUtf8(ravo::TableModuleKey(module)))) return module;
  }
  return std::nullopt;
}

std::string CheckModule(const std::string& name) {
  if (ModuleNamed(name)) return {};
  const std::string meant = DidYouMean(name, ModuleKeys());
  return Text("there is no module '{0}'; modules are {1}.", {name, ModuleNames()}) +
         (meant.empty() ? "" : " ") + meant;
}

std::string RangeText(const ravo::TableRow& row) {
  const std::string first = std::to_string(row.first);
  return row.first == row.last ? first : first + "-" + std::to_string(row.last);
}

Json RowJson(const ravo::TableRow& row) {
  return {{"module", ravo::TableModuleKey(row.module)},
          {"first", row.first},
          {"last", row.last},
          {"description", ravo::ToUtf8(row.description)}};
}

void ListRows(const TableOptions& options, Outcome& outcome) {
  const auto module = ModuleNamed(options.module);
  Columns lines;
  Json rows = Json::array();
  for (const ravo::TableRow& row : ravo::TableRows()) {
    if (module && row.module != *module) continue;
    lines.Add({RangeText(row), ravo::ToUtf8(row.description)});
    rows.push_back(RowJson(row));
  }
  outcome.out = options.json ? JsonText(rows) : lines.Text();
}

std::u16string_view Description(const std::optional<ravo::TableModule>& module, std::int32_t id) {
  return module ? ravo::TableDescription(*module, id) : ravo::RavoInterfaceCommon::TableDescription(id);
}

std::string UnknownTable(const std::optional<ravo::TableModule>& module, const std::string& id) {
  return module ? Text("the module {0} has no table {1}", {ravo::TableModuleKey(*module), id})
                : Text("no module has a table {0}", {id});
}

void LookUp(const TableOptions& options, Outcome& outcome) {
  const auto module = ModuleNamed(options.module);
  Columns lines;
  Json answers = Json::array();
  for (const std::string& text : options.ids) {
    const std::int32_t id = Identifier(text).value_or(0);
    const std::string description = ravo::ToUtf8(Description(module, id));
    answers.push_back({{"id", id}, {"description", description.empty() ? Json() : Json(description)}});
    if (description.empty()) {
      Complain(outcome, UnknownTable(module, std::to_string(id)), Answer::No);
    } else {
      lines.Add({std::to_string(id), description});
    }
  }
  outcome.out = options.json ? JsonText(answers) : lines.Text();
}

void Run(const TableOptions& options, Outcome& outcome) {
  if (!options.ids.empty()) return LookUp(options, outcome);
  if (options.all || !options.module.empty()) return ListRows(options, outcome);
  Complain(outcome, Text("which table? Give identifiers, --module or --all"), Answer::WrongUsage);
}

constexpr const char* kTableFooter = ToTranslate(
    "Exit status: 0 all tables are known, 1 a table is not, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo table 100121 72510        the descriptions of two tables\n"
    "  ravo table --module Mzda       the tables of the payroll module\n"
    "  ravo table --all --json        the whole catalogue, for a program\n");

}  // namespace

void AddTableCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command =
      program.add_subcommand("table", Text("Shows the descriptions of the suite's data tables"));
  const auto options = std::make_shared<TableOptions>();
  CLI::Option* ids = command->add_option(Text("ID"), options->ids, Text("Table identifiers to look up"));
  ids->check(CLI::Validator(CheckIdentifier, Text("NUMBER")));
  command->add_option("--module", options->module, Text("Only the tables of this module"))
      ->check(CLI::Validator(CheckModule, "{" + CLI::detail::join(ModuleKeys(), ",") + "}"));
  command->add_flag("--all", options->all, Text("List every table"))->excludes(ids);
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kTableFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

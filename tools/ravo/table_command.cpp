#include "commands.h"
#include "json_text.h"
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
  return Identifier(text) ? std::string() : "'" + text + "' is not a table identifier";
}

std::string ModuleNames() {
  std::string names;
  for (const ravo::TableModule module : ravo::TableModules()) {
    if (!names.empty()) names += ", ";
    names += ravo::TableModuleKey(module);
  }
  return names;
}

std::optional<ravo::TableModule> ModuleNamed(std::string_view name) {
  const std::u16string wanted = ravo::FromUtf8(name);
  for (const ravo::TableModule module : ravo::TableModules()) {
    if (ravo::SameAsciiText(wanted, ravo::FromUtf8(ravo::TableModuleKey(module)))) return module;
  }
  return std::nullopt;
}

std::string CheckModule(const std::string& name) {
  return ModuleNamed(name) ? std::string() : "'" + name + "' is not a module; modules are " + ModuleNames();
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
  Json rows = Json::array();
  for (const ravo::TableRow& row : ravo::TableRows()) {
    if (module && row.module != *module) continue;
    outcome.out += RangeText(row) + "\t" + ravo::ToUtf8(row.description) + "\n";
    rows.push_back(RowJson(row));
  }
  if (options.json) outcome.out = JsonText(rows);
}

std::u16string_view Description(const std::optional<ravo::TableModule>& module, std::int32_t id) {
  return module ? ravo::TableDescription(*module, id) : ravo::RavoInterfaceCommon::TableDescription(id);
}

void LookUp(const TableOptions& options, Outcome& outcome) {
  const auto module = ModuleNamed(options.module);
  const std::string asked =
      module ? std::string("module ") + std::string(ravo::TableModuleKey(*module)) : "module";
  Json answers = Json::array();
  for (const std::string& text : options.ids) {
    const std::int32_t id = Identifier(text).value_or(0);
    const std::string description = ravo::ToUtf8(Description(module, id));
    answers.push_back({{"id", id}, {"description", description.empty() ? Json() : Json(description)}});
    if (description.empty()) {
      outcome.err += "ravo: no " + asked + " has table " + std::to_string(id) + "\n";
      outcome.answer = Answer::No;
    } else {
      outcome.out += std::to_string(id) + "\t" + description + "\n";
    }
  }
  if (options.json) outcome.out = JsonText(answers);
}

void Run(const TableOptions& options, Outcome& outcome) {
  if (!options.ids.empty()) return LookUp(options, outcome);
  if (options.all || !options.module.empty()) return ListRows(options, outcome);
  throw CLI::RequiredError("table: an identifier, --module or --all");
}

constexpr const char* kTableFooter =
    "Exit status: 0 all tables are known, 1 a table is not, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo table 100121 72510        the descriptions of two tables\n"
    "  ravo table --module Mzda       the tables of the payroll module\n"
    "  ravo table --all --json        the whole catalogue, for a program\n";

}  // namespace

void AddTableCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("table", "Shows the descriptions of the suite's data tables");
  const auto options = std::make_shared<TableOptions>();
  CLI::Option* ids = command->add_option("ID", options->ids, "Table identifiers to look up");
  ids->check(CLI::Validator(CheckIdentifier, "NUMBER"));
  command->add_option("--module", options->module, "Only this module: " + ModuleNames())
      ->check(CLI::Validator(CheckModule, "NAME"));
  command->add_flag("--all", options->all, "List every table")->excludes(ids);
  command->add_flag("--json", options->json, "Write JSON");
  command->footer(kTableFooter);
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

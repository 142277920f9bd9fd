#include "columns.h"
#include "commands.h"
#include "json_text.h"
#include "nearest.h"
#include "text.h"
#include <ravo/DIUnicode.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {
namespace {

using ravo::DIUnicode::EncodingRow;

struct EncodingOptions {
  std::string wanted;
  bool json = false;
};

std::string Ways(const EncodingRow& row) {
  if (row.write == nullptr) return Text("reads");
  return row.read == nullptr ? Text("writes") : Text("reads, writes");
}

std::vector<std::string> CellsOf(const EncodingRow& row) {
  const std::string code_page = row.code_page == 0 ? "" : std::to_string(row.code_page);
  return {std::string(row.name), std::string(row.label), code_page, Ways(row), std::string(row.aliases)};
}

Json Aliases(std::string_view aliases) {
  Json names = Json::array();
  while (!aliases.empty()) {
    const std::size_t length = std::min(aliases.find(' '), aliases.size());
    names.push_back(aliases.substr(0, length));
    aliases.remove_prefix(std::min(length + 1, aliases.size()));
  }
  return names;
}

Json RowJson(const EncodingRow& row) {
  return {{"name", row.name},
          {"label", row.label},
          {"code_page", row.code_page == 0 ? Json() : Json(row.code_page)},
          {"aliases", Aliases(row.aliases)},
          {"reads", row.read != nullptr},
          {"writes", row.write != nullptr},
          {"notes", row.notes}};
}

std::string UnknownEncoding(const std::string& name) {
  std::vector<std::string> names;
  for (const EncodingRow& row : ravo::DIUnicode::EncodingRows()) names.emplace_back(row.name);
  const std::string meant = DidYouMean(name, names);
  return Text("there is no encoding '{0}'", {name}) + (meant.empty() ? "" : ". ") + meant;
}

void Run(const EncodingOptions& options, Outcome& outcome) {
  const EncodingRow* const only = ravo::DIUnicode::FindEncoding(options.wanted);
  Columns lines;
  Json rows = Json::array();
  for (const EncodingRow& row : ravo::DIUnicode::EncodingRows()) {
    if (!options.wanted.empty() && &row != only) continue;
    lines.Add(CellsOf(row));
    rows.push_back(RowJson(row));
  }
  if (rows.empty()) {
    Complain(outcome, UnknownEncoding(options.wanted), Answer::No);
  }
  outcome.out = options.json ? JsonText(rows) : lines.Text();
}

constexpr const char* kEncodingsFooter = ToTranslate(
    "A line has the name, a label, the Windows code page number if there is one, whether the encoding is "
    "read\n"
    "and written, and other names. Names are found in any case; characters other than letters and digits are "
    "ignored.\n"
    "\n"
    "Exit status: 0 found, 1 not found, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo encodings                  all of them\n"
    "  ravo encodings windows-1250     by name, alias or code page number\n"
    "  ravo encodings 852 --json\n");

}  // namespace

void AddEncodingsCommand(CLI::App& program, Outcome& outcome) {
  const auto options = std::make_shared<EncodingOptions>();
  CLI::App* const command = program.add_subcommand("encodings", Text("Lists the encodings of text"));
  command->add_option(Text("NAME"), options->wanted, Text("A name, an alias, a label or a code page number"));
  command->add_flag("--json", options->json, Text("Write a JSON array with all properties"));
  command->footer(Text(kEncodingsFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

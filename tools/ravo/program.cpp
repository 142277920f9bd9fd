#include "program.h"

#include "commands.h"
#include "output_options.h"
#include "words_after_mark.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace tool {
namespace {

constexpr const char* kProgramFooter =
    "Exit status: 0 yes, 1 no (such as an unknown table), 2 wrong usage or an unusable file.\n"
    "\n"
    "Examples:\n"
    "  ravo tour                      the commands at work, one by one\n"
    "  ravo report\n"
    "  ravo table 100121\n"
    "  ravo captions --plain\n"
    "  ravo COMMAND --help            options and examples of a command\n";

// The commands by theme, in the order of `ravo --help` and of the manual page. A new command needs a line
// here.
struct Theme {
  const char* title;
  std::vector<void (*)(CLI::App&, Outcome&)> commands;
};

std::vector<Theme> Themes() {
  return {
      {"The suite", {AddTableCommand, AddCaptionsCommand, AddInterfacesCommand}},
      {"Accounting",
       {AddCheckCommand, AddRoundCommand, AddVatCommand, AddDateCommand, AddDueCommand, AddHolidaysCommand,
        AddAddressCommand, AddBackupNameCommand}},
      {"Documents", {AddXmlCommand, AddFormCommand}},
      {"Characters and texts",
       {AddCharCommand, AddSortCommand, AddMatchCommand, AddUrlCommand, AddRandomCommand}},
      {"Files", {AddConvertCommand, AddEncodingsCommand, AddHashCommand}},
      {"Support", {AddReportCommand, AddTourCommand}},
  };
}

void AddTheme(CLI::App& program, const Theme& theme, Outcome& outcome) {
  for (const auto add : theme.commands) {
    const auto before = program.get_subcommands({}).size();
    add(program, outcome);
    const auto commands = program.get_subcommands({});
    for (auto added = before; added < commands.size(); ++added) commands[added]->group(theme.title);
  }
}

// Help and version succeed; every other early end of parsing is wrong usage, whatever code the parser
// returns.
Outcome Ended(const CLI::App& program, const CLI::ParseError& end) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = program.exit(end, out, err);
  return {out.str(), Unmarked(err.str()), code == 0 ? Answer::Yes : Answer::WrongUsage};
}

}  // namespace

void Describe(CLI::App& program, Outcome& outcome) {
  program.name("ravo");
  program.description("Command-line access to the shared interface library of the accounting suite");
  program.require_subcommand(1);
  program.set_version_flag("--version", "ravo " RAVO_VERSION, "Print the version and exit");
  program.footer(kProgramFooter);
  for (const Theme& theme : Themes()) AddTheme(program, theme, outcome);
  AddOutputRules(program);
  UnmarkValues(program);
}

Outcome Run(std::vector<std::string> arguments) {
  CLI::App program;
  Outcome outcome;
  Describe(program, outcome);
  arguments = MarkedAfterDashes(std::move(arguments));
  // The parser takes its arguments in reverse order.
  std::reverse(arguments.begin(), arguments.end());
  try {
    program.parse(std::move(arguments));
  } catch (const CLI::ParseError& end) {
    return Ended(program, end);
  }
  return outcome;
}

}  // namespace tool

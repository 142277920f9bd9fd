#include "commands.h"
#include "console.h"

#include <algorithm>
#include <exception>
#include <sstream>

namespace tool {
namespace {

constexpr const char* kFooter =
    "Exit status: 0 yes, 1 no (such as a table that no module knows), 2 wrong usage or an unusable file.\n"
    "\n"
    "Examples:\n"
    "  ravo report\n"
    "  ravo table 100121\n"
    "  ravo captions --plain\n";

void Describe(CLI::App& program, Outcome& outcome) {
  program.name("ravo");
  program.require_subcommand(1);
  program.set_version_flag("--version", "ravo " RAVO_VERSION, "Print the version and end");
  program.footer(kFooter);
  AddReportCommand(program, outcome);
  AddTableCommand(program, outcome);
  AddCaptionsCommand(program, outcome);
  AddCheckCommand(program, outcome);
  AddRoundCommand(program, outcome);
  AddDateCommand(program, outcome);
  AddHashCommand(program, outcome);
  AddRandomCommand(program, outcome);
  AddCharCommand(program, outcome);
  AddSortCommand(program, outcome);
  AddMatchCommand(program, outcome);
  AddUrlCommand(program, outcome);
  AddAddressCommand(program, outcome);
  AddBackupNameCommand(program, outcome);
  AddInterfacesCommand(program, outcome);
  AddXmlCommand(program, outcome);
  AddFormCommand(program, outcome);
}

// Help and version are answers; every other end of parsing is wrong usage, whatever number the parser gives
// it.
Outcome Ended(const CLI::App& program, const CLI::ParseError& end) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = program.exit(end, out, err);
  return {out.str(), err.str(), code == 0 ? Answer::Yes : Answer::WrongUsage};
}

Outcome Run(std::vector<std::string> arguments) {
  CLI::App program(
      "The shared interface library at the prompt: tables, captions, accounting rules, the support report.");
  Outcome outcome;
  Describe(program, outcome);
  // The parser takes its arguments from the back.
  std::reverse(arguments.begin(), arguments.end());
  try {
    program.parse(std::move(arguments));
  } catch (const CLI::ParseError& end) {
    return Ended(program, end);
  }
  return outcome;
}

int Finish(const Outcome& outcome) {
  const bool written = Write(Channel::Out, outcome.out);
  if (!written && !Write(Channel::Err, "ravo: the output cannot be written\n")) return 2;
  const bool told = Write(Channel::Err, outcome.err);
  return written && told ? static_cast<int>(outcome.answer) : static_cast<int>(Answer::WrongUsage);
}

}  // namespace
}  // namespace tool

int main(int argc, char** argv) {
  try {
    return tool::Finish(tool::Run(tool::Arguments(argc, argv)));
  } catch (const std::exception& error) {
    static_cast<void>(tool::Write(tool::Channel::Err, std::string("ravo: ") + error.what() + "\n"));
    return static_cast<int>(tool::Answer::WrongUsage);
  }
}

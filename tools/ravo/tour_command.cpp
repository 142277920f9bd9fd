#include "commands.h"
#include "console.h"
#include "program.h"

#include <cstddef>
#include <sstream>
#include <string>

namespace tool {
namespace {

// A stop of the tour: its purpose, the command as typed, and the number of output lines to show.
struct Stop {
  const char* why;
  const char* command;
  std::size_t lines;
};

constexpr Stop kStops[] = {
    {"The suite identifies tables by number; these are their descriptions.", "table 71710 100121 72510", 10},
    {"All tables of a module.", "table --module DCF", 6},
    {"The Czech captions of choices.", "captions --plain", 8},
    {"Both parts of a bank account have a weighted sum of their own.", "check banka 19-2000145399/0800", 4},
    {"One digit mistyped: the output says so, and the exit status is 1.",
     "check ean 4006381333931 4006381333932", 4},
    {"Identifiers by the rules of the country, with the reason of a refusal.",
     "check ico \"IČ: 046 25 781\" 27082441", 4},
    {"Value-added tax by the rates of a day, from totals.", "vat --total 1210 112:12 --on 2026-11-22", 4},
    {"A term of fourteen days ends on a working day.", "due 2026-11-07 --days 14", 4},
    {"Halves are rounded away from zero, without binary fractions.", "round 1.005 -1.005 2,675", 4},
    {"Value-added tax to the nearest half crown, for a program to read.", "round 12,25 --dph P --json", 8},
    {"One month later, from the last day of January.", "date 2011-01-31 --month 1", 8},
    {"The weeks of a month.", "date 2024-03-28 --calendar", 12},
    {"The street and house number of an address as people write it.", "address \"Nádražní 1234/5\"", 4},
    {"A file name without characters that a file system rejects.",
     "backup-name \"%FIRMA%_%DATUM%.zip\" \"A/B: s.r.o.\"", 2},
    {"A reproducible random text: the same everywhere for the same seed.", "random --seed 2024 --count 40",
     2},
    {"The Unicode properties of a character.", "char č", 8},
    {"Names that match a mask, ignoring case.", "match --ignore-case \"p??jem*\" Příjemka Výdejka", 2},
    {"A text encoded for a web address.", "url encode \"Kč & €\"", 2},
    {"The suite's 8-bit encoding, by any of its names.", "encodings cp1250", 2},
    {"The interfaces of the host's object model.", "interfaces IRavoSession", 6},
    {"The support report of this machine.", "report", 12},
};

struct Colours {
  const char* heading = "";
  const char* command = "";
  const char* off = "";
};

Colours OfTerminal(bool on) { return on ? Colours{"\033[1m", "\033[32m", "\033[0m"} : Colours{}; }

// Returns the first lines of a text, and the number of lines left out.
std::string Top(const std::string& text, std::size_t most) {
  std::istringstream lines(text);
  std::string top;
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line); ++count)
    if (count < most) top += line + "\n";
  return count > most ? top + "... " + std::to_string(count - most) + " lines more\n" : top;
}

void Visit(const Stop& stop, const Colours& colours, Outcome& tour) {
  const Outcome answer = tool::Run(CLI::detail::split_up(stop.command));
  tour.out += colours.heading + std::string("# ") + stop.why + colours.off + "\n";
  tour.out += colours.command + std::string("$ ravo ") + stop.command + colours.off + "\n";
  tour.out += Top(answer.out, stop.lines);
  if (answer.answer == Answer::No) tour.out += "(exit status 1)\n";
  tour.out += "\n";
  // Wrong usage in a stop is a mistake in the table above.
  if (answer.answer != Answer::WrongUsage) return;
  tour.err += answer.err;
  tour.answer = Answer::WrongUsage;
}

constexpr const char* kTourFooter =
    "Exit status: 0 once through, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo tour\n"
    "  ravo tour --commands           what it would run, one command in a line\n";

void Walk(bool commands_only, Outcome& outcome) {
  const Colours colours = OfTerminal(ShowsColours(Channel::Out));
  for (const Stop& stop : kStops)
    if (commands_only)
      outcome.out += std::string("ravo ") + stop.command + "\n";
    else
      Visit(stop, colours, outcome);
  if (!commands_only) outcome.out += "ravo COMMAND --help says more, with examples.\n";
}

}  // namespace

void AddTourCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("tour", "Shows the commands at work, in a minute");
  const auto commands_only = std::make_shared<bool>(false);
  command->add_flag("--commands", *commands_only, "Only list what the tour runs");
  command->footer(kTourFooter);
  command->callback([commands_only, &outcome] { Walk(*commands_only, outcome); });
}

}  // namespace tool

#include "commands.h"
#include "console.h"
#include "json_text.h"
#include "program.h"
#include "text.h"
#include "text_file.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <system_error>

namespace tool {
namespace {

namespace fs = std::filesystem;

struct TourOptions {
  bool commands_only = false;
  bool json = false;
};

// A file that the commands of the tour read.
struct TourFile {
  const char* name;
  const char* content;
};

constexpr TourFile kFiles[] = {
    {"ledger.csv",
     "Doklad;Účet MD;VS;Text\n"
     "FP26000001;501;2026000579;Nákup zboží\n"
     "FP26000002;50;2026000580;Oprava vozidla\n"
     "FP26000003;518100;2026O003;Nájemné\n"},
    {"letter.txt",
     "V\xE1\x9E"
     "en\xE1 pan\xED, \xFA\xE8"
     "et pos\xEDl\xE1me.\n"},
    {"invoice.xml",
     "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
     "<Faktura Cislo=\"26001\"><Odberatel>Žluťoučký kůň, a.s.</Odberatel>\n"
     "<Radek><Popis>Pronájem</Popis><Castka>1210.00</Castka></Radek></Faktura>\n"},
};

// A stop of the tour: its purpose, the command as typed, and the number of output lines to show.
struct Stop {
  const char* why;
  const char* command;
  std::size_t lines;
};

constexpr Stop kStops[] = {
    {ToTranslate("The suite identifies tables by number; these are their descriptions."),
     "table 71710 100121 72510", 10},
    {ToTranslate("All tables of a module."), "table --module DCF", 6},
    {ToTranslate("The Czech captions of choices."), "captions --plain", 8},
    {ToTranslate("Both parts of a bank account have a weighted sum of their own."),
     "check banka 19-2000145399/0800", 4},
    {ToTranslate("One digit mistyped: the output says so, and the exit status is 1."),
     "check ean 4006381333931 4006381333932", 4},
    {ToTranslate("Identifiers by the rules of the country, with the reason of a refusal."),
     "check ico \"IČ: 046 25 781\" 27082441", 4},
    {ToTranslate("A whole table: the columns by their names, each with the kind of its values."),
     "check --csv ledger.csv --column \"Účet MD=ucet\" --column VS=vs", 8},
    {ToTranslate("Value-added tax by the rates of a day, from totals."),
     "vat --total 1210 112:12 --on 2026-11-22", 4},
    {ToTranslate("A term of fourteen days ends on a working day."), "due 2026-11-07 --days 14", 4},
    {ToTranslate("Halves are rounded away from zero, without binary fractions."), "round 1.005 -1.005 2,675",
     4},
    {ToTranslate("Value-added tax to the nearest half crown, for a program to read."),
     "round 12,25 --dph P --json", 8},
    {ToTranslate("One month later, from the last day of January."), "date 2011-01-31 --month 1", 8},
    {ToTranslate("The weeks of a month."), "date 2024-03-28 --calendar", 12},
    {ToTranslate("The street and house number of an address as people write it."),
     "address \"Nádražní 1234/5\"", 4},
    {ToTranslate("A file name without characters that a file system rejects."),
     "backup-name \"%FIRMA%_%DATUM%.zip\" \"A/B: s.r.o.\"", 2},
    {ToTranslate("An XML document as a tree."), "xml show invoice.xml", 10},
    {ToTranslate("One value of it."), "xml get invoice.xml Faktura/Radek/Castka", 2},
    {ToTranslate("A text of the suite, in Windows-1250, becomes UTF-8."),
     "convert -f windows-1250 -t utf-8 letter.txt", 4},
    {ToTranslate("A reproducible random text: the same everywhere for the same seed."),
     "random --seed 2024 --count 40", 2},
    {ToTranslate("The Unicode properties of a character."), "char č", 8},
    {ToTranslate("Names that match a mask, ignoring case."),
     "match --ignore-case \"p??jem*\" Příjemka Výdejka", 2},
    {ToTranslate("A text encoded for a web address."), "url encode \"Kč & €\"", 2},
    {ToTranslate("The suite's 8-bit encoding, by any of its names."), "encodings cp1250", 2},
    {ToTranslate("The interfaces of the host's object model."), "interfaces IRavoSession", 6},
    {ToTranslate("The support report of this machine."), "report", 12},
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
  if (count <= most) return top;
  const auto left = static_cast<std::int64_t>(count - most);
  return top + TextOf(left, "... one line more", "... {0} lines more") + "\n";
}

// A command may write as it works, so the tour writes what precedes its output at once.
void Say(const std::string& text) { static_cast<void>(WriteWithCodes(Channel::Out, text)); }

void Visit(const Stop& stop, const Colours& colours, Outcome& tour) {
  Say(colours.heading + ("# " + Text(stop.why)) + colours.off + "\n");
  Say(colours.command + std::string("$ ravo ") + stop.command + colours.off + "\n");
  const Outcome answer = tool::Run(CLI::detail::split_up(stop.command));
  static_cast<void>(Write(Channel::Out, Top(answer.out, stop.lines)));
  if (answer.answer == Answer::No) Say(Text("(exit status 1)") + "\n");
  Say("\n");
  // Wrong usage in a stop is a mistake in the table above.
  if (answer.answer != Answer::WrongUsage) return;
  tour.err += answer.err;
  tour.answer = Answer::WrongUsage;
}

// The folder in which the tour works, with the files of its commands; it goes with the tour.
class Workplace {
 public:
  Workplace() : before_(fs::current_path()), folder_(UnusedFolder()) {
    fs::create_directory(folder_);
    fs::current_path(folder_);
    for (const TourFile& file : kFiles) std::ofstream(PathOf(file.name), std::ios::binary) << file.content;
  }
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;
  ~Workplace() {
    std::error_code ignored;
    fs::current_path(before_, ignored);
    fs::remove_all(folder_, ignored);
  }

 private:
  static fs::path UnusedFolder() {
    std::random_device random;
    return fs::temp_directory_path() / ("ravo-tour-" + std::to_string(random()));
  }

  fs::path before_;
  fs::path folder_;
};

constexpr const char* kTourFooter = ToTranslate(
    "Exit status: 0 once through, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo tour\n"
    "  ravo tour --commands           what it would run, one command in a line\n"
    "  ravo tour --json               the same, with what each command is for\n");

void ListCommands(Outcome& outcome) {
  for (const Stop& stop : kStops) outcome.out += std::string("ravo ") + stop.command + "\n";
}

void ListStops(Outcome& outcome) {
  Json stops = Json::array();
  for (const Stop& stop : kStops)
    stops.push_back({{"purpose", Text(stop.why)}, {"command", std::string("ravo ") + stop.command}});
  outcome.out = JsonText(stops);
}

void Walk(Outcome& outcome) {
  const Workplace workplace;
  const Colours colours = OfTerminal(ShowsColours(Channel::Out));
  for (const Stop& stop : kStops) Visit(stop, colours, outcome);
  outcome.out = Text("`ravo help COMMAND` says more, with examples.") + "\n";
}

}  // namespace

void AddTourCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("tour", Text("Shows the commands at work, in a minute"));
  const auto options = std::make_shared<TourOptions>();
  command->add_flag("--commands", options->commands_only, Text("Only list what the tour runs"));
  command->add_flag("--json", options->json, Text("Only list what the tour runs, as JSON"));
  command->footer(Text(kTourFooter));
  command->callback([options, &outcome] {
    if (options->json) return ListStops(outcome);
    options->commands_only ? ListCommands(outcome) : Walk(outcome);
  });
}

}  // namespace tool

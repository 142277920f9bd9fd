#include "program.h"

#include "commands.h"
#include "console.h"
#include "language.h"
#include "output_options.h"
#include "program_errors.h"
#include "program_help.h"
#include "program_values.h"
#include "text.h"
#include "words_after_mark.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace tool {
namespace {

constexpr const char* kVersionLine = "ravo " RAVO_VERSION "\n";
constexpr const char* kExitStatus = ToTranslate(
    "Exit status: 0 yes, or nothing found; 1 no, or findings; 2 wrong usage, or some of the work could not\n"
    "be done.\n");
constexpr const char* kEnvironment = ToTranslate(
    "Environment: RAVO_LANG, LANGUAGE, LC_ALL, LC_MESSAGES, LANG: the first that is set chooses the\n"
    "language of texts for people (cs, en); what scripts read is the same in every language.\n");
constexpr const char* kExamples = ToTranslate(
    "Examples:\n"
    "  ravo tour                      the commands at work, one by one\n"
    "  ravo report\n"
    "  ravo table 100121\n"
    "  ravo captions --plain\n"
    "  ravo help round                options and examples of a command\n");

// A command by its name, under which the program calls it without the description of any other.
struct Command {
  std::string_view name;
  void (*add)(CLI::App&, Outcome&);
};

// The commands by theme, in the order of `ravo --help` and of the manual page. A new command needs a line
// here.
struct Theme {
  const char* title;
  std::vector<Command> commands;
};

void AddHelpCommand(CLI::App& program, Outcome& outcome);
void AddVersionCommand(CLI::App& program, Outcome& outcome);

std::vector<Theme> Themes() {
  return {
      {ToTranslate("The suite"),
       {{"table", AddTableCommand}, {"captions", AddCaptionsCommand}, {"interfaces", AddInterfacesCommand}}},
      {ToTranslate("Accounting"),
       {{"check", AddCheckCommand},
        {"round", AddRoundCommand},
        {"vat", AddVatCommand},
        {"date", AddDateCommand},
        {"due", AddDueCommand},
        {"holidays", AddHolidaysCommand},
        {"qr", AddQrCommand},
        {"address", AddAddressCommand},
        {"backup-name", AddBackupNameCommand}}},
      {ToTranslate("Documents"),
       {{"isdoc", AddIsdocCommand}, {"xml", AddXmlCommand}, {"form", AddFormCommand}}},
      {ToTranslate("Characters and texts"),
       {{"char", AddCharCommand},
        {"sort", AddSortCommand},
        {"match", AddMatchCommand},
        {"url", AddUrlCommand},
        {"random", AddRandomCommand}}},
      {ToTranslate("Files"),
       {{"convert", AddConvertCommand}, {"encodings", AddEncodingsCommand}, {"hash", AddHashCommand}}},
      {ToTranslate("Support"),
       {{"report", AddReportCommand},
        {"tour", AddTourCommand},
        {"help", AddHelpCommand},
        {"version", AddVersionCommand}}},
  };
}

std::vector<Theme> ThemesWith(std::string_view name) {
  std::vector<Theme> themes = Themes();
  for (const Theme& theme : themes) {
    const auto command = std::ranges::find(theme.commands, name, &Command::name);
    if (command != theme.commands.end()) return {{theme.title, {*command}}};
  }
  return themes;
}

void ShowHelp(const CLI::App& program, const std::vector<std::string>& words, bool json, Outcome& outcome) {
  const CLI::App* app = &program;
  std::string name = "ravo";
  for (const std::string& word : words) {
    const CLI::App* const command = CommandNamed(*app, word);
    if (command == nullptr) return ReportUnknownCommand(*app, word, outcome);
    app = command;
    name += " " + word;
  }
  outcome.out = json ? JsonText(HelpJson(*app, name)) : HelpText(*app, name);
}

void AddHelpCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("help", Text("Shows how a command is used"));
  const auto words = std::make_shared<std::vector<std::string>>();
  const auto json = std::make_shared<bool>(false);
  command->add_option(Text("COMMAND"), *words, Text("The command; without one, all commands are listed"));
  command->add_flag("--json", *json, Text("Write JSON"));
  command->footer(
      Text("Examples:\n"
           "  ravo help\n"
           "  ravo help xml show\n"
           "  ravo help check --json         for a program\n"));
  command->callback([words, json, &outcome] {
    CLI::App whole;
    Describe(whole, outcome);
    ShowHelp(whole, *words, *json, outcome);
  });
}

void AddVersionCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("version", Text("Shows the version of the program"));
  const auto json = std::make_shared<bool>(false);
  command->add_flag("--json", *json, Text("Write JSON"));
  command->footer("");
  command->callback([json, &outcome] {
    outcome.out = *json ? JsonText({{"program", "ravo"}, {"version", RAVO_VERSION}}) : kVersionLine;
  });
}

void AddTheme(CLI::App& program, const Theme& theme, Outcome& outcome) {
  for (const Command& command : theme.commands) {
    command.add(program, outcome);
    program.get_subcommand(std::string(command.name))->group(Text(theme.title));
  }
}

CLI::Option* AddLanguageOption(CLI::App& app) {
  return app
      .add_option_function<std::string>(
          "--lang", [](const std::string&) {}, Text("The language of texts for people: cs or en"))
      ->check(CLI::IsMember({"cs", "en"}));
}

// Every command knows its own words, takes --lang, and lists its own commands under a title.
void Complete(CLI::App& app, const std::string& words, Outcome& outcome) {
  for (CLI::App* command : app.get_subcommands({})) {
    const std::string own = words.empty() ? command->get_name() : words + " " + command->get_name();
    command->preparse_callback([own, &outcome](std::size_t) { outcome.command = own; });
    AddLanguageOption(*command)->group("");
    if (command->get_group() == "Subcommands") command->group(Text("Commands"));
    Complete(*command, own, outcome);
  }
}

// Texts are translated while the commands are described, so the language must be known before.
std::optional<Language> LanguageAsked(const std::vector<std::string>& arguments) {
  constexpr std::string_view kOption = "--lang";
  std::optional<Language> asked;
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    const std::string& word = arguments[i];
    if (word == kOption && i + 1 < arguments.size()) asked = LanguageNamed(arguments[i + 1]);
    if (word.starts_with("--lang=")) asked = LanguageNamed(word.substr(kOption.size() + 1));
  }
  return asked;
}

// The name of the only command that the arguments need, if there is one: the version is an option as well.
std::string_view CommandOf(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return {};
  const std::string_view first = arguments.front();
  return arguments.size() == 1 && (first == "--version" || first == "-V") ? "version" : first;
}

std::vector<std::string> Words(const std::string& command) {
  return command.empty() ? std::vector<std::string>() : CLI::detail::split(command, ' ');
}

// Help and version succeed; every other early end of parsing is wrong usage, whatever code the parser
// returns.
void End(const CLI::App& program, const CLI::ParseError& end, Outcome& outcome) {
  if (end.get_name() == "CallForVersion")
    outcome.out = kVersionLine;
  else if (end.get_exit_code() == 0)
    ShowHelp(program, Words(outcome.command), false, outcome);
  else
    ReportWrongUsage(program, end, outcome);
  outcome.err = Unmarked(outcome.err);
}

bool Show(const Outcome& outcome) {
  return outcome.coloured ? WriteWithCodes(Channel::Out, outcome.out) : Write(Channel::Out, outcome.out);
}

}  // namespace

void Describe(CLI::App& program, Outcome& outcome, std::string_view only) {
  program.name("ravo");
  program.description(Text("Command-line access to the shared interface library of the accounting suite"));
  program.formatter(HelpLayout());
  program.require_subcommand(1);
  program.set_help_flag("-h,--help", Text("Show this help"));
  program.set_version_flag("-V,--version", "ravo " RAVO_VERSION, Text("Show the version"));
  AddLanguageOption(program);
  program.footer(Text(kExitStatus) + "\n" + Text(kEnvironment) + "\n" + Text(kExamples));
  for (const Theme& theme : ThemesWith(only)) AddTheme(program, theme, outcome);
  AddOutputRules(program);
  RefuseFlagValues(program);
  UnmarkValues(program);
  Complete(program, "", outcome);
}

Outcome Run(std::vector<std::string> arguments) {
  if (const auto language = LanguageAsked(arguments)) SetLanguage(*language);
  CLI::App program;
  // A path or a bank code may begin with a slash, on Windows too.
  program.allow_windows_style_options(false);
  Outcome outcome;
  Describe(program, outcome, CommandOf(arguments));
  arguments = MarkedAfterDashes(std::move(arguments));
  // The parser takes its arguments in reverse order.
  std::reverse(arguments.begin(), arguments.end());
  try {
    program.parse(std::move(arguments));
  } catch (const CLI::ParseError& end) {
    End(program, end, outcome);
  } catch (const std::exception& error) {
    Complain(outcome, error.what(), Answer::WrongUsage);
  }
  return outcome;
}

int RunAndWrite(std::vector<std::string> arguments) {
  Outcome outcome = Run(std::move(arguments));
  if (!Show(outcome)) Complain(outcome, Text("the output cannot be written"), Answer::WrongUsage);
  if (!Write(Channel::Err, outcome.err)) outcome.answer = Answer::WrongUsage;
  return static_cast<int>(outcome.answer);
}

}  // namespace tool

#include "program_errors.h"

#include "nearest.h"
#include "program_help.h"
#include "text.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace tool {
namespace {

// What the parser says, with its parts in "{}", and what the program says instead.
struct Phrase {
  const char* error;
  std::string_view parser;
  const char* ours;
};

constexpr std::string_view kNotInSet = "{}: {} not in {{}}";

constexpr Phrase kPhrases[] = {
    {"RequiredError", "A subcommand is required", ToTranslate("a command is missing")},
    {"RequiredError", "{} is required", ToTranslate("{0} is missing")},
    {"RequiresError", "{} requires {}", ToTranslate("{0} can only be used with {1}")},
    {"ExcludesError", "{} excludes {}", ToTranslate("{0} and {1} cannot be used together")},
    {"ArgumentMismatch", "{}: {} required {} missing", ToTranslate("{0} needs a value")},
    {"ArgumentMismatch", "{}: At Most 1 required but received {}", ToTranslate("{0} may be given only once")},
    {"ArgumentMismatch", "{}: At Most {} required but received {}",
     ToTranslate("{0} may be given at most {1} times")},
    {"ArgumentMismatch", "{} was given a disallowed flag override", ToTranslate("--{0} takes no value")},
    {"ConversionError", "Could not convert: {} = {}",
     ToTranslate("{0} takes a number; '{1}' is none, or too large")},
    {"ValidationError", kNotInSet, ToTranslate("{0} cannot be '{1}'; it is one of: {2}.")},
    {"ValidationError", "{}: Value {} not in range {} to {}",
     ToTranslate("{0} goes from {2} to {3}; {1} is outside")},
};

// Returns the parts of a message that stand for "{}" in the pattern.
std::optional<std::vector<std::string>> PartsOf(std::string_view message, std::string_view pattern) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t place = pattern.find("{}");
    const std::string_view fixed = pattern.substr(0, place);
    const std::size_t at = place == std::string_view::npos && message.ends_with(fixed)
                               ? message.size() - fixed.size()
                               : message.find(fixed);
    if (at == std::string_view::npos || (parts.empty() && at != 0)) return {};
    if (!parts.empty()) parts.back() = message.substr(0, at);
    message.remove_prefix(at + fixed.size());
    if (place == std::string_view::npos) return message.empty() ? std::optional(parts) : std::nullopt;
    pattern.remove_prefix(place + 2);
    parts.emplace_back();
  }
}

std::string WithSpaces(const std::string& list) { return CLI::detail::find_and_replace(list, ",", ", "); }

// The parser leaves out the name of an option that help hides, which is --lang in a command.
std::string OptionNamed(const std::string& name) { return name.empty() ? "--lang" : name; }

std::string Phrased(const Phrase& phrase, std::vector<std::string> parts) {
  parts.resize(std::max<std::size_t>(parts.size(), 4));
  std::string text = Text(phrase.ours, {OptionNamed(parts[0]), parts[1], WithSpaces(parts[2]), parts[3]});
  if (phrase.parser != kNotInSet) return text;
  const std::string meant = DidYouMean(parts[1], CLI::detail::split(parts[2], ','));
  return meant.empty() ? text : text + " " + meant;
}

std::string OurWords(const CLI::ParseError& error) {
  for (const Phrase& phrase : kPhrases) {
    if (error.get_name() != phrase.error) continue;
    if (const auto parts = PartsOf(error.what(), phrase.parser)) return Phrased(phrase, *parts);
  }
  return error.what();
}

const CLI::App& Innermost(const CLI::App& app) {
  const auto parsed = app.get_subcommands();
  return parsed.empty() ? app : Innermost(*parsed.front());
}

std::vector<std::string> OptionNames(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::Option* option : app.get_options())
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  return names;
}

std::string WithQuestion(const std::string& message, const std::string& question) {
  return question.empty() ? message : message + ". " + question;
}

void ReportUnexpected(const CLI::App& app, const std::string& word, Outcome& outcome) {
  if (word.starts_with('-'))
    return Complain(outcome,
                    WithQuestion(Text("there is no option {0}", {word}),
                                 DidYouMean(word.substr(0, word.find('=')), OptionNames(app))),
                    Answer::WrongUsage);
  if (!CommandNames(app).empty()) return ReportUnknownCommand(app, word, outcome);
  Complain(outcome, Text("the argument '{0}' is one too many", {word}), Answer::WrongUsage);
}

void AddWhereHelpIs(Outcome& outcome) {
  outcome.err += outcome.command.empty()
                     ? Text("`ravo help` lists the commands.")
                     : Text("`ravo help {0}` shows what the command takes.", {outcome.command});
  outcome.err += "\n";
}

// A command that refuses its arguments names itself.
std::string WithoutCommand(const std::string& message, const std::string& command) {
  return message.starts_with(command + ": ") ? message.substr(command.size() + 2) : message;
}

// The parser looks at values and missing arguments before it looks at words that it does not know: an option
// that does not exist leaves its value to the arguments, and an unknown command is a missing one.
bool IsAboutUnexpected(const CLI::ParseError& error, const CLI::App& app, const std::string& word) {
  if (word.starts_with('-') || !CommandNames(app).empty()) return true;
  return error.get_name() != "ValidationError" && error.get_name() != "RequiredError";
}

}  // namespace

void ReportUnknownCommand(const CLI::App& app, std::string_view word, Outcome& outcome) {
  Complain(outcome,
           WithQuestion(Text("there is no command '{0}'", {word}), DidYouMean(word, CommandNames(app))),
           Answer::WrongUsage);
}

void ReportWrongUsage(const CLI::App& program, const CLI::ParseError& error, Outcome& outcome) {
  const CLI::App& app = Innermost(program);
  const std::vector<std::string> before = program.remaining();
  if (&app != &program && !before.empty()) {
    outcome.command.clear();
    ReportUnexpected(program, before.front(), outcome);
    return AddWhereHelpIs(outcome);
  }
  const std::vector<std::string> unexpected = app.remaining();
  if (!unexpected.empty() && IsAboutUnexpected(error, app, unexpected.front()))
    ReportUnexpected(app, unexpected.front(), outcome);
  else
    Complain(outcome, WithoutCommand(OurWords(error), outcome.command), Answer::WrongUsage);
  AddWhereHelpIs(outcome);
}

}  // namespace tool

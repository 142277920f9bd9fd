#include "pages.h"

#include <algorithm>

namespace pages {
namespace {

// The command is the longest sequence of words that are sub-commands; the first other word ends it.
constexpr const char* kHead =
    R"(# Completion of ravo for bash; made from the definitions of the commands, do not edit.
_ravo() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} command='' words='' i
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    [[ ${COMP_WORDS[i]} != -* ]] || continue
    case "${command:+$command }${COMP_WORDS[i]}" in
)";

constexpr const char* kMiddle = R"(      *) break ;;
    esac
  done
  case "$command $previous" in
)";

// If no word matches, the shell completes file names.
constexpr const char* kTail = R"(  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -o default -F _ravo ravo
)";

bool IsWord(const std::string& text) {
  constexpr std::string_view kOther = "-_";
  return !text.empty() && std::all_of(text.begin(), text.end(), [&](char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 ||
           kOther.find(character) != std::string::npos;
  });
}

// Returns the values of an option with a fixed set: the parser calls its type "TEXT:{up,down}".
std::string Values(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  const auto begin = type.find('{');
  if (begin == std::string::npos || type.back() != '}') return "";
  const auto values = CLI::detail::split(type.substr(begin + 1, type.size() - begin - 2), ',');
  return std::all_of(values.begin(), values.end(), IsWord) ? CLI::detail::join(values, " ") : "";
}

std::vector<std::string> Spellings(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  return names;
}

std::string OptionWords(const CLI::App& app) {
  std::vector<std::string> words;
  for (const CLI::Option* option : app.get_options())
    for (const std::string& name : Spellings(*option)) words.push_back(name);
  return CLI::detail::join(words, " ");
}

// The words after an option that takes a value: one of its set, or a file name.
std::string ValueRows(const Command& command) {
  std::string rows;
  for (const CLI::Option* option : command.app->get_options()) {
    if (option->get_items_expected_max() == 0) continue;
    for (const std::string& name : Spellings(*option))
      rows += "    '" + command.words + " " + name + "') words='" + Values(*option) + "' ;;\n";
  }
  return rows;
}

std::string CommandNames(const CLI::App& app) {
  std::string names;
  for (const CLI::App* command : app.get_subcommands({}))
    if (!command->get_group().empty()) names += command->get_name() + " ";
  return names;
}

// The words that a command itself takes: its sub-commands; also its options after a hyphen, or if it has no
// sub-commands.
std::string CommandRow(const Command& command) {
  const std::string names = CommandNames(*command.app);
  const std::string words = "words='" + names + OptionWords(*command.app) + "' ;;\n";
  const std::string row = "    '" + command.words + " '*) ";
  return row + (names.empty() ? "[[ $word != -* ]] || " : "") + words;
}

}  // namespace

std::string BashCompletion(const CLI::App& program) {
  std::string known, rows, options;
  for (const Command& command : Commands(program)) {
    known += "      '" + command.words + "') command='" + command.words + "' ;;\n";
    rows += ValueRows(command);
    // Longer commands come first: "xml show" must not match as "xml".
    options.insert(0, CommandRow(command));
  }
  return kHead + known + kMiddle + rows + options + "    ' '*) words='" + CommandNames(program) +
         OptionWords(program) + "' ;;\n" + kTail;
}

}  // namespace pages

#include "pages.h"

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
    if (!TakesValue(*option)) continue;
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

// The first word after a command: one of the set of its first argument, if it has one, or an option.
std::string FirstWordRow(const Command& command) {
  const std::string values = FirstArgumentValues(*command.app);
  if (values.empty()) return "";
  return "    '" + command.words + " " + command.app->get_name() + "') words='" + values + " " +
         OptionWords(*command.app) + "' ;;\n";
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
    rows += ValueRows(command) + FirstWordRow(command);
    // Longer commands come first: "xml show" must not match as "xml".
    options.insert(0, CommandRow(command));
  }
  return kHead + known + kMiddle + rows + ValueRows({"", &program}) + options + "    ' '*) words='" +
         CommandNames(program) + OptionWords(program) + "' ;;\n" + kTail;
}

}  // namespace pages

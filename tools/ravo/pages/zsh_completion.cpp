#include "pages.h"

namespace pages {
namespace {

// As in the completion for bash: the command is the longest sequence of words that are sub-commands.
constexpr const char* kZshHead =
    R"(#compdef ravo
# Completion of ravo for zsh; made from the definitions of the commands, do not edit.
local command='' previous=${words[CURRENT-1]}
integer i
local -a known
for ((i = 2; i < CURRENT; i++)); do
  [[ ${words[i]} != -* ]] || continue
  case "${command:+$command }${words[i]}" in
)";

constexpr const char* kZshMiddle = R"(    *) break ;;
  esac
  command="${command:+$command }${words[i]}"
done
case "$command $previous" in
)";

// An entry of `_describe`, "word:description", in single quotes.
std::string Described(const std::string& word, const std::string& description) {
  std::string text = CLI::detail::find_and_replace(word + ":" + description, "'", "'\\''");
  return "'" + CLI::detail::find_and_replace(text, "\n", " ") + "' ";
}

std::string DescribedOptions(const CLI::App& app) {
  std::string entries;
  for (const CLI::Option* option : app.get_options())
    for (const std::string& name : Spellings(*option)) entries += Described(name, option->get_description());
  return entries;
}

std::string DescribedCommands(const CLI::App& app) {
  std::string entries;
  for (const CLI::App* command : app.get_subcommands({}))
    if (!command->get_group().empty()) entries += Described(command->get_name(), command->get_description());
  return entries;
}

// After an option that takes a value, one of its set or a file name.
std::string AfterOptions(const Command& command) {
  std::string rows;
  for (const CLI::Option* option : command.app->get_options()) {
    if (!TakesValue(*option)) continue;
    const std::string values = Values(*option);
    for (const std::string& name : Spellings(*option))
      rows += "  '" + command.words + " " + name + "') " +
              (values.empty() ? "_files" : "compadd -- " + values) + "; return ;;\n";
  }
  return rows;
}

std::string FirstWord(const Command& command) {
  const std::string values = FirstArgumentValues(*command.app);
  if (values.empty()) return "";
  return "  '" + command.words + " " + command.app->get_name() + "') compadd -- " + values + " ;;\n";
}

std::string Offer(const Command& command) {
  const std::string commands = DescribedCommands(*command.app);
  std::string row = "  '" + command.words + "')\n";
  if (!commands.empty()) row += "    known=(" + commands + ")\n    _describe -t commands command known\n";
  row += "    known=(" + DescribedOptions(*command.app) + ")\n    _describe -o option known\n";
  return row + (commands.empty() ? "    _files\n" : "") + "    ;;\n";
}

}  // namespace

std::string ZshCompletion(const CLI::App& program) {
  std::string known, after, offers;
  for (const Command& command : Commands(program)) {
    known += "    '" + command.words + "') ;;\n";
    after += AfterOptions(command) + FirstWord(command);
    offers += Offer(command);
  }
  return kZshHead + known + kZshMiddle + after + AfterOptions({"", &program}) +
         "esac\ncase \"$command\" in\n" + offers + Offer({"", &program}) + "esac\n";
}

}  // namespace pages

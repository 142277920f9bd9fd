#include "pages.h"

namespace pages {
namespace {

constexpr const char* kFishHead =
    R"(# Completion of ravo for fish; made from the definitions of the commands, do not edit.
function __ravo_at
  set -l found ''
  for word in (commandline -opc)[2..-1]
    string match -q -- '-*' $word; and continue
    set -l longer (string trim -- "$found $word")
    contains -- $longer $__ravo_commands; or break
    set found $longer
  end
  test "$found" = "$argv[1]"
end
)";

std::string FishQuoted(const std::string& text) {
  std::string escaped = CLI::detail::find_and_replace(text, "\\", "\\\\");
  escaped = CLI::detail::find_and_replace(escaped, "'", "\\'");
  return "'" + CLI::detail::find_and_replace(escaped, "\n", " ") + "'";
}

std::string Row(const std::string& command, const std::string& rest, const std::string& description) {
  std::string row = "complete -c ravo -n " + FishQuoted("__ravo_at " + FishQuoted(command)) + rest;
  if (!description.empty()) row += " -d " + FishQuoted(description);
  return row + "\n";
}

std::string OptionRow(const std::string& command, const CLI::Option& option) {
  std::string names;
  for (const std::string& name : option.get_lnames()) names += " -l " + name;
  for (const std::string& name : option.get_snames()) names += " -s " + name;
  if (names.empty()) return "";
  const std::string values = Values(option);
  if (TakesValue(option)) names += values.empty() ? " -r" : " -x -a " + FishQuoted(values);
  return Row(command, names, option.get_description());
}

std::string RowsOf(const Command& command) {
  std::string rows;
  for (const CLI::App* own : command.app->get_subcommands({}))
    if (!own->get_group().empty())
      rows += Row(command.words, " -f -a " + own->get_name(), own->get_description());
  for (const CLI::Option* option : command.app->get_options()) rows += OptionRow(command.words, *option);
  const std::string values = FirstArgumentValues(*command.app);
  return values.empty() ? rows : rows + Row(command.words, " -a " + FishQuoted(values), "");
}

}  // namespace

std::string FishCompletion(const CLI::App& program) {
  std::string names, rows;
  for (const Command& command : Commands(program)) {
    names += " " + FishQuoted(command.words);
    rows += RowsOf(command);
  }
  return kFishHead + std::string("set -g __ravo_commands") + names + "\n" + RowsOf({"", &program}) + rows;
}

}  // namespace pages

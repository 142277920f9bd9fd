#include "pages.h"

#include <algorithm>
#include <cctype>

namespace pages {
namespace {

void Collect(const CLI::App& app, const std::string& words, std::vector<Command>& commands) {
  for (const CLI::App* command : app.get_subcommands({})) {
    if (command->get_group().empty()) continue;
    const std::string name = words.empty() ? command->get_name() : words + " " + command->get_name();
    commands.push_back({name, command});
    Collect(*command, name, commands);
  }
}

bool IsWord(const std::string& text) {
  constexpr std::string_view kOther = "-_";
  return !text.empty() && std::all_of(text.begin(), text.end(), [&](char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 ||
           kOther.find(character) != std::string::npos;
  });
}

}  // namespace

std::vector<Command> Commands(const CLI::App& program) {
  std::vector<Command> commands;
  Collect(program, "", commands);
  return commands;
}

std::vector<std::string> Spellings(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  return names;
}

bool TakesValue(const CLI::Option& option) { return option.get_items_expected_max() != 0; }

// The parser calls the type "TEXT:{up,down}".
std::string Values(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  const auto begin = type.find('{');
  if (begin == std::string::npos || type.back() != '}') return "";
  const auto values = CLI::detail::split(type.substr(begin + 1, type.size() - begin - 2), ',');
  return std::all_of(values.begin(), values.end(), IsWord) ? CLI::detail::join(values, " ") : "";
}

std::string FirstArgumentValues(const CLI::App& app) {
  for (const CLI::Option* option : app.get_options())
    if (option->get_positional()) return Values(*option);
  return "";
}

}  // namespace pages

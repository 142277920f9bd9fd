#include "pages.h"

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

}  // namespace

std::vector<Command> Commands(const CLI::App& program) {
  std::vector<Command> commands;
  Collect(program, "", commands);
  return commands;
}

}  // namespace pages

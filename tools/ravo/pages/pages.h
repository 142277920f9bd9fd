#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

/// Pages made from the definitions of the program's commands.
namespace pages {

/// The manual page, for groff's `man` macros, in UTF-8.
[[nodiscard]] std::string ManPage(const CLI::App& program, std::string_view version);

/// The completion of command lines, a script for bash that needs nothing but bash.
[[nodiscard]] std::string BashCompletion(const CLI::App& program);

/// The sub-commands that help shows, in their order.
[[nodiscard]] inline std::vector<const CLI::App*> Commands(const CLI::App& program) {
  return program.get_subcommands([](const CLI::App* command) { return !command->get_group().empty(); });
}

}  // namespace pages

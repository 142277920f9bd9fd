#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

/// Pages generated from the definitions of the program's commands.
namespace pages {

/// Returns the manual page in groff's `man` macros, in UTF-8.
[[nodiscard]] std::string ManPage(const CLI::App& program, std::string_view version);

/// Returns the completion of command lines, a script that needs only bash.
[[nodiscard]] std::string BashCompletion(const CLI::App& program);

/// A sub-command with the words that call it ("xml show").
struct Command {
  std::string words;
  const CLI::App* app;
};

/// Returns all sub-commands that help shows, in its order, each before its own sub-commands.
[[nodiscard]] std::vector<Command> Commands(const CLI::App& program);

}  // namespace pages

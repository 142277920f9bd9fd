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

/// A sub-command with the words by which one calls it ("xml show").
struct Command {
  std::string words;
  const CLI::App* app;
};

/// All sub-commands that help shows, in its order, each before its own.
[[nodiscard]] std::vector<Command> Commands(const CLI::App& program);

}  // namespace pages

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

/// Pages generated from the definitions of the program's commands.
namespace pages {

/// Returns the manual page in groff's `man` macros, in UTF-8 and in the current language.
[[nodiscard]] std::string ManPage(const CLI::App& program, std::string_view version);

/// Return the completion of command lines for a shell, a script that needs only that shell.
[[nodiscard]] std::string BashCompletion(const CLI::App& program);
[[nodiscard]] std::string ZshCompletion(const CLI::App& program);
[[nodiscard]] std::string FishCompletion(const CLI::App& program);

/// A sub-command with the words that call it ("xml show").
struct Command {
  std::string words;
  const CLI::App* app;
};

/// Returns all sub-commands that help shows, in its order, each before its own sub-commands.
[[nodiscard]] std::vector<Command> Commands(const CLI::App& program);

/// Returns the names of an option as they are typed, long ones first; none for an argument.
[[nodiscard]] std::vector<std::string> Spellings(const CLI::Option& option);

/// Returns whether an option takes a value.
[[nodiscard]] bool TakesValue(const CLI::Option& option);

/// Returns the values of an option or argument with a fixed set, separated by spaces; empty for any other.
[[nodiscard]] std::string Values(const CLI::Option& option);

/// Returns the values of the first argument of a command, as `Values` does.
[[nodiscard]] std::string FirstArgumentValues(const CLI::App& app);

}  // namespace pages

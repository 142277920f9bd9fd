#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

/// "--" ends the options of every command: no word after it is an option or a command. The parser forgets
/// that once a command has a word; so the words are marked before it and unmarked in what it makes of them.
namespace tool {

/// Returns the arguments without "--", the words after it marked.
[[nodiscard]] std::vector<std::string> MarkedAfterDashes(std::vector<std::string> arguments);

/// Returns `text` without marks.
[[nodiscard]] std::string Unmarked(std::string text);

/// Lets all options of a command and of its parts take their values unmarked.
void UnmarkValues(CLI::App& command);

}  // namespace tool

#pragma once

#include "outcome.h"

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

/// The whole program: its sub-commands by theme, and the run of one command line.
namespace tool {

/// Adds all commands and options to `program`; the command that runs writes its result to `outcome`.
void Describe(CLI::App& program, Outcome& outcome);

/// Runs the arguments (without the program's name) and returns the outcome, which also reports wrong usage.
/// Other exceptions of a sub-command pass through.
[[nodiscard]] Outcome Run(std::vector<std::string> arguments);

}  // namespace tool

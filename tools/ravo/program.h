#pragma once

#include "outcome.h"

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

/// The whole program: its sub-commands by theme, and a run of one command line.
namespace tool {

/// Adds everything that a command line may say; what the named sub-command has to tell goes into `outcome`.
void Describe(CLI::App& program, Outcome& outcome);

/// What becomes of the arguments (without the program's name). Wrong usage is told in the outcome; what a
/// sub-command raises beyond that passes through.
[[nodiscard]] Outcome Run(std::vector<std::string> arguments);

}  // namespace tool

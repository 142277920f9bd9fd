#pragma once

#include <CLI/CLI.hpp>

namespace tool {

/// Gives every command with an output file (-o) the same rules: an empty name is wrong usage, and --force
/// replaces a file that is marked read-only.
void AddOutputRules(CLI::App& command);

}  // namespace tool

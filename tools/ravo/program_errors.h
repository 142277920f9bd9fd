#pragma once

#include "outcome.h"

#include <string_view>

#include <CLI/CLI.hpp>

namespace tool {

/// Reports wrong usage: what the parser found, in the user's words, the nearest command or option for one
/// that does not exist, and where help is.
void ReportWrongUsage(const CLI::App& program, const CLI::ParseError& error, Outcome& outcome);

/// Reports that `app` has no sub-command of this name.
void ReportUnknownCommand(const CLI::App& app, std::string_view word, Outcome& outcome);

}  // namespace tool

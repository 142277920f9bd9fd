#pragma once

#include "outcome.h"

#include <CLI/CLI.hpp>

namespace tool {

/// Adds `extract` to the command `ravo isdoc`.
void AddIsdocExtract(CLI::App& isdoc, Outcome& outcome);

}  // namespace tool

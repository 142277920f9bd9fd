#pragma once

#include "outcome.h"

#include <CLI/CLI.hpp>

/// The commands of `ravo isdoc`.
namespace tool {

/// Adds those that read invoices; in a build without expat one that says so.
void AddIsdocReaders(CLI::App& isdoc, Outcome& outcome);

}  // namespace tool

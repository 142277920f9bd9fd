// The command-line program ravo: the library through its public headers, one source file per sub-command.
//
// A file NAME_command.cpp adds its sub-command to the program, parses its options and forms its output. The
// work on files is in separate sources that the tests and fuzz targets reach too: csv_reader.h, check_file.h,
// file_hash.h, form_file.h. Texts leave the program through console.h alone, in UTF-8; output_file.h writes
// files whole or not at all. pages/ generates the manual page and the completion from the same definitions as
// the help.
//
// Start here, then read program.cpp and one command, such as round_command.cpp. A command never exits by
// itself: it returns its result in an `Outcome`, which `RunAndWrite` writes. What people read goes through
// text.h, which translates it; errors through `Complain`; listings through columns.h.
#pragma once

#include "outcome.h"

#include <string>
#include <vector>

/// The whole program: the run of one command line.
namespace tool {

/// Runs the arguments (without the program's name) and returns the outcome, which also reports wrong usage
/// and what a sub-command throws.
[[nodiscard]] Outcome Run(std::vector<std::string> arguments);

/// The same, with the outcome written to the standard channels. Returns the exit status.
[[nodiscard]] int RunAndWrite(std::vector<std::string> arguments);

}  // namespace tool

#pragma once

#include "outcome.h"

#include <string_view>

#include <CLI/CLI.hpp>

/// The sub-commands. Each function adds one to the program; if the command line names it, it fills in the
/// outcome.
namespace tool {

/// Adds the command with the name `only` to the program, or all of them, by theme, if no command has it. The
/// descriptions of all take longer than the work of most command lines.
void Describe(CLI::App& program, Outcome& outcome, std::string_view only = {});

void AddReportCommand(CLI::App& program, Outcome& outcome);
void AddTableCommand(CLI::App& program, Outcome& outcome);
void AddCaptionsCommand(CLI::App& program, Outcome& outcome);
void AddCheckCommand(CLI::App& program, Outcome& outcome);
void AddRoundCommand(CLI::App& program, Outcome& outcome);
void AddDateCommand(CLI::App& program, Outcome& outcome);
void AddVatCommand(CLI::App& program, Outcome& outcome);
void AddDueCommand(CLI::App& program, Outcome& outcome);
void AddHolidaysCommand(CLI::App& program, Outcome& outcome);
void AddQrCommand(CLI::App& program, Outcome& outcome);
void AddHashCommand(CLI::App& program, Outcome& outcome);
void AddRandomCommand(CLI::App& program, Outcome& outcome);
void AddCharCommand(CLI::App& program, Outcome& outcome);
void AddSortCommand(CLI::App& program, Outcome& outcome);
void AddMatchCommand(CLI::App& program, Outcome& outcome);
void AddUrlCommand(CLI::App& program, Outcome& outcome);
void AddAddressCommand(CLI::App& program, Outcome& outcome);
void AddBackupNameCommand(CLI::App& program, Outcome& outcome);
void AddInterfacesCommand(CLI::App& program, Outcome& outcome);
void AddIsdocCommand(CLI::App& program, Outcome& outcome);
void AddXmlCommand(CLI::App& program, Outcome& outcome);
void AddIsdocCommand(CLI::App& program, Outcome& outcome);
void AddFormCommand(CLI::App& program, Outcome& outcome);
void AddEncodingsCommand(CLI::App& program, Outcome& outcome);
void AddConvertCommand(CLI::App& program, Outcome& outcome);
void AddTourCommand(CLI::App& program, Outcome& outcome);

}  // namespace tool

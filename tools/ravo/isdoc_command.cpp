#include "commands.h"
#include "isdoc_extract_command.h"
#include "text.h"

namespace tool {

void AddIsdocCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* isdoc = program.add_subcommand("isdoc", Text("Invoices in the format ISDOC"));
  isdoc->require_subcommand(1);
  isdoc->footer(
      Text("Examples:\n"
           "  ravo isdoc extract invoice.isdocx folder\n"));
  AddIsdocExtract(*isdoc, outcome);
}

}  // namespace tool

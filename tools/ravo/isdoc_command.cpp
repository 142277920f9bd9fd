#include "commands.h"
#include "isdoc_commands.h"
#include "isdoc_extract_command.h"
#include "text.h"

namespace tool {
namespace {

constexpr const char* kIsdocFooter = ToTranslate(
    "Invoices by the standard ISDOC 6. FILE can be - for standard input, and a folder stands for the "
    "invoices "
    "in it\n"
    "and below: files *.isdoc, and *.xml that are invoices.\n"
    "\n"
    "check compares an invoice with the schema and the rules of the standard, its identifiers and accounts "
    "with\n"
    "their check digits, its dates, and its sums in exact decimals. A finding is an error, or a note if it "
    "is\n"
    "lawful, or a difference of at most half a haléř a line.\n"
    "\n"
    "Exit status: 0 no errors, 1 errors (with --strict also notes), 2 wrong usage or a file that is no "
    "invoice.\n"
    "\n"
    "Examples:\n"
    "  ravo isdoc check invoice.isdoc\n"
    "  ravo isdoc check invoices/ --json\n"
    "  ravo isdoc show invoice.isdoc\n"
    "  ravo isdoc csv invoices/ > lines.csv\n"
    "  ravo isdoc csv --recapitulation invoices/ > vat.csv\n"
    "  ravo isdoc extract invoice.isdocx folder\n");

}  // namespace

void AddIsdocCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* isdoc = program.add_subcommand("isdoc", Text("Checks and shows electronic invoices (ISDOC)"));
  isdoc->require_subcommand(1);
  isdoc->footer(Text(kIsdocFooter));
  AddIsdocReaders(*isdoc, outcome);
  AddIsdocExtract(*isdoc, outcome);
}

}  // namespace tool

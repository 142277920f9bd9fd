#include "isdoc_extract_command.h"

#include "isdoc_extract_work.h"
#include "text.h"

#include <memory>

namespace tool {
namespace {

constexpr const char* kExtractFooter = ToTranslate(
    "FILE is an ISDOCX, which is a ZIP archive, or a PDF with embedded files; - is standard input. The "
    "invoice\n"
    "and its attachments are written into DIR under names that every system permits, without folders; all "
    "of\n"
    "them, or none. A file that exists is not replaced without --force. Encrypted files are refused, and so "
    "is\n"
    "what unpacks to more than 200 times its size or, in all, to more than --max-size.\n"
    "\n"
    "Exit status: 0, or 1 no invoice in it, 2 wrong usage or a file that cannot be read or written.\n"
    "\n"
    "Examples:\n"
    "  ravo isdoc extract invoice.isdocx folder\n"
    "  ravo isdoc extract --list invoice.pdf\n");

}  // namespace

void AddIsdocExtract(CLI::App& isdoc, Outcome& outcome) {
  CLI::App* command =
      isdoc.add_subcommand("extract", Text("Writes the invoice and its attachments from a container"));
  const auto options = std::make_shared<ExtractOptions>();
  command->add_option(Text("FILE"), options->file, Text("An ISDOCX or a PDF"))->required();
  CLI::Option* folder = command->add_option(Text("DIR"), options->folder, Text("The folder to write into"));
  command->add_flag("--list", options->list, Text("List what there is, and write nothing"))->excludes(folder);
  command->add_flag("--force", options->force, Text("Replace files that exist"));
  command->add_option("--max-size", options->max_size, Text("Mebibytes that may be unpacked in all"))
      ->check(CLI::Range(1, 2000).description(""))
      ->type_name(Text("NUMBER"))
      ->capture_default_str();
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kExtractFooter));
  command->callback([options, &outcome] {
    if (!options->list && options->folder.empty())
      throw CLI::ValidationError(Text("give a folder, or --list"));
    ExtractInvoice(*options, outcome);
  });
}

}  // namespace tool

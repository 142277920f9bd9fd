#include "document_file.h"
#include "isdoc_commands.h"
#include "isdoc_work.h"
#include "text.h"

#include <memory>

namespace tool {
namespace {

CLI::App* AddReader(CLI::App& isdoc, Outcome& outcome, const char* name, const std::string& what,
                    IsdocWork* work, const std::shared_ptr<IsdocOptions>& options) {
  CLI::App* const command = isdoc.add_subcommand(name, what);
  command->add_flag("--json", options->json, Text("One JSON object a line"));
  command->callback([work, options, &outcome] {
    try {
      work(*options, outcome);
    } catch (const FileError& error) {
      Complain(outcome, error.what(), Answer::WrongUsage);
    }
  });
  return command;
}

}  // namespace

void AddIsdocReaders(CLI::App& isdoc, Outcome& outcome) {
  const auto options = std::make_shared<IsdocOptions>();
  const auto add = [&](const char* name, const std::string& what, IsdocWork* work) {
    return AddReader(isdoc, outcome, name, what, work, options);
  };
  CLI::App* const check = add("check", Text("Lists what is wrong with invoices"), CheckInvoices);
  check->add_option(Text("FILE"), options->files, Text("Invoices, and folders of them"))->required();
  check->add_flag("--strict", options->strict, Text("Notes count as errors do"));
  CLI::App* const show = add("show", Text("Shows an invoice as one would read it"), ShowInvoice);
  show->add_option(Text("FILE"), options->file, Text("An invoice"))->required();
  CLI::App* const csv = add("csv", Text("Writes the lines of invoices as a table"), WriteInvoicesAsTable);
  csv->add_option(Text("FILE"), options->files, Text("Invoices, and folders of them"))->required();
  CLI::Option* const rates = csv->add_flag("--recapitulation", options->recapitulation,
                                           Text("The rates of VAT instead of the lines"));
  csv->add_flag("--lines", options->lines, Text("The lines, as by default"))->excludes(rates);
}

}  // namespace tool

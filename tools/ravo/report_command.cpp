#include "commands.h"
#include "console.h"
#include "json_text.h"
#include "report_tree.h"
#include "text.h"
#include "text_file.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceInfo.h>

#include <memory>
#include <string>

namespace tool {
namespace {

struct ReportOptions {
  bool business = false;
  bool json = false;
  std::string file;
};

std::string ReportText(bool business) {
  using namespace ravo::RavoInterfaceInfo;
  TRavoSystemInfo info;
  return ravo::ToUtf8(info.AsText(business ? siBusiness : siVisual));
}

// Standard output has the line ends of every other command; a file keeps the report unchanged.
std::string WithoutReturns(const std::string& text) {
  return ravo::ToUtf8(ravo::ReplaceAll(ravo::FromUtf8(text), u"\r\n", u"\n"));
}

void Run(const ReportOptions& options, Outcome& outcome) {
  const std::string report = ReportText(options.business);
  if (options.file.empty() || options.file == kInputName) {
    outcome.out = options.json ? JsonText(ReportTree(report)) : WithoutReturns(report);
    return;
  }
  const std::string failure =
      WriteTextFile(options.file, options.json ? JsonText(ReportTree(report)) : report);
  if (!failure.empty()) Complain(outcome, options.file + ": " + failure, Answer::WrongUsage);
}

constexpr const char* kReportFooter = ToTranslate(
    "Exit status: 0 written, 2 wrong usage or a file that cannot be written.\n"
    "\n"
    "Examples:\n"
    "  ravo report                    the report of a client module\n"
    "  ravo report --business         the report of the application layer\n"
    "  ravo report -o report.txt      into a file, lines ending in CR LF, for a support request\n"
    "  ravo report --json             the same facts for a program\n");

}  // namespace

void AddReportCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("report", Text("Writes the support report of this machine"));
  const auto options = std::make_shared<ReportOptions>();
  command->add_flag("--business", options->business,
                    Text("The report of the application layer instead of a client module"));
  command->add_flag("--json", options->json, Text("Write JSON: nested {caption, value, items}"));
  command->add_option("-o", options->file, Text("Write to this file, which is complete or stays as it was"))
      ->type_name(Text("FILE"));
  command->footer(Text(kReportFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

#include "commands.h"
#include "json_text.h"
#include "text.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <memory>
#include <string>

namespace tool {
namespace {

struct BackupNameOptions {
  std::string name_template;
  std::string company;
  bool json = false;
};

void Run(const BackupNameOptions& options, Outcome& outcome) {
  const std::u16string name = ravo::RavoInterfaceCommon::ParseZalohaFile(
      ravo::FromUtf8(options.name_template), ravo::FromUtf8(options.company));
  outcome.out = options.json ? JsonText({{"name", ravo::ToUtf8(name)}}) : ravo::ToUtf8(name) + "\n";
}

constexpr const char* kBackupNameFooter = ToTranslate(
    "Placeholders, in either case: %FIRMA% the company without the characters that a file name must not "
    "hold,\n"
    "%DATUM% the current date as yymmdd, %CAS% the time as hhmmss. No file is created.\n"
    "\n"
    "Examples:\n"
    "  ravo backup-name \"%FIRMA%_%DATUM%_%CAS%.zip\" \"A/B: s.r.o.\"\n");

}  // namespace

void AddBackupNameCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("backup-name", Text("Forms the name of a backup file"));
  const auto options = std::make_shared<BackupNameOptions>();
  command->add_option(Text("TEMPLATE"), options->name_template, Text("The name with placeholders"))
      ->required();
  command->add_option(Text("COMPANY"), options->company, Text("The company's name"));
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kBackupNameFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

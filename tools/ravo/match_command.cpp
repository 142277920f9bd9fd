#include "commands.h"
#include "json_text.h"
#include "text.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

struct MatchOptions {
  std::string mask;
  std::vector<std::string> texts;
  bool ignore_case = false;
  bool json = false;
};

void Run(const MatchOptions& options, Outcome& outcome) {
  const auto match = options.ignore_case ? ravo::DIUtils::StrMatchWildIW : ravo::DIUtils::StrMatchWildW;
  const std::u16string mask = ravo::FromUtf8(options.mask);
  Json found = Json::array();
  for (const std::string& text : options.texts) {
    if (!match(ravo::FromUtf8(text), mask, u'*', u'?')) continue;
    outcome.out += text + "\n";
    found.push_back({{"text", text}});
  }
  if (found.empty()) Complain(outcome, Text("nothing matches '{0}'", {options.mask}), Answer::No);
  if (options.json) outcome.out = JsonText(found);
}

constexpr const char* kMatchFooter = ToTranslate(
    "Prints the texts that match as a whole. * matches any run of characters, ? one character.\n"
    "\n"
    "Exit status: 0 if a text matches, 1 if none does, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo match \"faktura-*.pdf\" faktura-1.pdf objednavka-1.pdf\n"
    "  ravo match --ignore-case \"P??JEMKA*\" Příjemka\n");

}  // namespace

void AddMatchCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("match", Text("Matches texts against a mask"));
  const auto options = std::make_shared<MatchOptions>();
  command->add_option(Text("MASK"), options->mask, Text("The mask"))->required();
  command->add_option(Text("TEXT"), options->texts, Text("Texts"))->required();
  command->add_flag("--ignore-case", options->ignore_case, Text("Ignore case"));
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kMatchFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

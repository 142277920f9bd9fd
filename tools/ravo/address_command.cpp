#include "columns.h"
#include "commands.h"
#include "json_text.h"
#include "text.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

struct AddressOptions {
  std::vector<std::string> addresses;
  bool json = false;
};

void Run(const AddressOptions& options, Outcome& outcome) {
  Columns lines;
  Json answers = Json::array();
  for (const std::string& address : options.addresses) {
    std::u16string street;
    std::u16string number;
    ravo::RavoInterfaceCommon::AdresaExpand(ravo::FromUtf8(address), street, number);
    lines.Add({ravo::ToUtf8(street), ravo::ToUtf8(number)});
    answers.push_back(
        {{"address", address}, {"street", ravo::ToUtf8(street)}, {"number", ravo::ToUtf8(number)}});
  }
  outcome.out = options.json ? JsonText(answers) : lines.Text();
}

constexpr const char* kAddressFooter = ToTranslate(
    "One line per address: the street, a tab, the house number (empty if the last word is not one).\n"
    "\n"
    "Examples:\n"
    "  ravo address \"Nádražní 1234/5\" \"Na Příkopě XIV\"\n");

}  // namespace

void AddAddressCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command =
      program.add_subcommand("address", Text("Splits addresses into street and house number"));
  const auto options = std::make_shared<AddressOptions>();
  command->add_option(Text("ADDRESS"), options->addresses, Text("Addresses"))->required();
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kAddressFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

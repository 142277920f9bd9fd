#include "commands.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

using Texts = std::vector<std::string>;

void AddCoder(CLI::App& command, const char* name, const char* description,
              std::string (*code)(const std::string&), Outcome& outcome) {
  CLI::App* coder = command.add_subcommand(name, description);
  const auto texts = std::make_shared<Texts>();
  coder->add_option("TEXT", *texts, "Texts")->required();
  coder->callback([texts, code, &outcome] {
    for (const std::string& text : *texts) outcome.out += code(text) + "\n";
  });
}

std::string Encoded(const std::string& text) { return ravo::DIUtils::StrEncodeUrlA(text); }

// The encoding of the bytes is unknown; bytes that are not UTF-8 become U+FFFD.
std::string Decoded(const std::string& text) {
  return ravo::ToUtf8(ravo::FromUtf8(ravo::DIUtils::StrDecodeUrlA(text)));
}

constexpr const char* kUrlFooter =
    "Texts are form-encoded, by the bytes of their UTF-8; each gives one line.\n"
    "\n"
    "Exit status: 0, or 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo url encode \"Kč & €\"                           K%C4%8D+%26+%E2%82%AC\n"
    "  ravo url decode K%C4%8D\n";

}  // namespace

void AddUrlCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("url", "Encodes and decodes texts for web addresses");
  command->require_subcommand(1);
  command->footer(kUrlFooter);
  AddCoder(*command, "encode", "Encodes texts", Encoded, outcome);
  AddCoder(*command, "decode", "Decodes texts", Decoded, outcome);
}

}  // namespace tool

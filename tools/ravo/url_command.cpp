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

struct UrlOptions {
  std::vector<std::string> texts;
  bool json = false;
};

void Code(const UrlOptions& options, std::string (*code)(const std::string&), Outcome& outcome) {
  Json answers = Json::array();
  for (const std::string& text : options.texts) {
    const std::string coded = code(text);
    outcome.out += coded + "\n";
    answers.push_back({{"text", text}, {"result", coded}});
  }
  if (options.json) outcome.out = JsonText(answers);
}

void AddCoder(CLI::App& command, const char* name, const std::string& description,
              std::string (*code)(const std::string&), Outcome& outcome) {
  CLI::App* coder = command.add_subcommand(name, description);
  const auto options = std::make_shared<UrlOptions>();
  coder->add_option(Text("TEXT"), options->texts, Text("Texts"))->required();
  coder->add_flag("--json", options->json, Text("Write JSON"));
  coder->callback([options, code, &outcome] { Code(*options, code, outcome); });
}

std::string Encoded(const std::string& text) { return ravo::DIUtils::StrEncodeUrlA(text); }

// The encoding of the bytes is unknown; bytes that are not UTF-8 become U+FFFD.
std::string Decoded(const std::string& text) {
  return ravo::ToUtf8(ravo::FromUtf8(ravo::DIUtils::StrDecodeUrlA(text)));
}

constexpr const char* kUrlFooter = ToTranslate(
    "Texts are form-encoded, by the bytes of their UTF-8; each gives one line.\n"
    "\n"
    "Exit status: 0, or 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo url encode \"Kč & €\"                           K%C4%8D+%26+%E2%82%AC\n"
    "  ravo url decode K%C4%8D\n");

}  // namespace

void AddUrlCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("url", Text("Encodes and decodes texts for web addresses"));
  command->require_subcommand(1);
  command->footer(Text(kUrlFooter));
  AddCoder(*command, "encode", Text("Encodes texts"), Encoded, outcome);
  AddCoder(*command, "decode", Text("Decodes texts"), Decoded, outcome);
}

}  // namespace tool

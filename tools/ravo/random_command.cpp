#include "commands.h"
#include "json_text.h"
#include "text.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <memory>
#include <string>

namespace tool {
namespace {

struct RandomOptions {
  std::string seed;
  std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
  std::ptrdiff_t count = 16;
  bool json = false;
};

// Characters are drawn unit by unit, so a surrogate pair would be split.
std::string CheckAlphabet(const std::string& text) {
  const std::u16string units = ravo::FromUtf8(text);
  const auto is_surrogate = [](char16_t unit) { return unit >= 0xD800 && unit <= 0xDFFF; };
  if (units.empty()) return Text("the alphabet is empty");
  return std::ranges::any_of(units, is_surrogate) ? Text("the alphabet has characters past U+FFFF") : "";
}

std::string CheckSeed(const std::string& text) { return text.empty() ? Text("the seed is empty") : ""; }

void Run(const RandomOptions& options, Outcome& outcome) {
  const std::u16string text =
      ravo::DIUtils::StrRandomW(options.seed, ravo::FromUtf8(options.alphabet), options.count);
  outcome.out = options.json ? JsonText({{"text", ravo::ToUtf8(text)}}) : ravo::ToUtf8(text) + "\n";
}

constexpr const char* kRandomFooter = ToTranslate(
    "The same seed, alphabet and count give the same text on every machine; do not use it as a secret. "
    "The\n"
    "seed counts as its bytes in UTF-8.\n"
    "\n"
    "Exit status: 0, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo random --seed 2024 --count 8\n"
    "  ravo random --seed test --alphabet 01 --count 64\n");

}  // namespace

void AddRandomCommand(CLI::App& program, Outcome& outcome) {
  constexpr std::ptrdiff_t kMost = 100'000'000;
  CLI::App* command = program.add_subcommand("random", Text("Writes a reproducible random text"));
  const auto options = std::make_shared<RandomOptions>();
  command->add_option("--seed", options->seed, Text("The seed of the generator"))
      ->required()
      ->check(CLI::Validator(CheckSeed, ""));
  command
      ->add_option("--alphabet", options->alphabet,
                   Text("The characters to draw from; repeat one to make it more likely"))
      ->check(CLI::Validator(CheckAlphabet, ""))
      ->capture_default_str();
  command->add_option("--count", options->count, Text("The number of characters"))
      ->check(CLI::Range(std::ptrdiff_t{0}, kMost))
      ->capture_default_str();
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kRandomFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

#include "amount.h"
#include "commands.h"
#include "json_text.h"
#include <ravo/RavoInterface.h>
#include <ravo/RavoInterfaceCommon.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;

struct RoundOptions {
  std::vector<std::string> amounts;
  std::string mode = "math";
  int decimals = 2;
  std::string dph;
  bool json = false;
};

const std::map<std::string, common::TRoundType> kModes{
    {"up", common::rtUp}, {"down", common::rtDown}, {"math", common::rtMath}};

std::string CheckAmount(const std::string& text) {
  return ParseAmount(text) ? std::string() : "'" + text + "' is not an amount of at most four decimals";
}

ravo::Currency Rounded(ravo::Currency amount, const RoundOptions& options) {
  if (!options.dph.empty()) return common::RoundDPH(amount, static_cast<char16_t>(options.dph.front()));
  return common::RoundValue(amount, kModes.at(options.mode), static_cast<std::int8_t>(options.decimals));
}

void Run(const RoundOptions& options, Outcome& outcome) {
  Json answers = Json::array();
  for (const std::string& text : options.amounts) {
    const ravo::Currency amount = ParseAmount(text).value_or(ravo::Currency{});
    try {
      const std::string rounded = AmountText(Rounded(amount, options));
      outcome.out.append(text).append("\t").append(rounded).append("\n");
      answers.push_back({{"amount", AmountText(amount)}, {"rounded", rounded}});
    } catch (const ravo::Error&) {
      outcome.err += "ravo: " + text + " leaves the range of amounts\n";
      outcome.answer = Answer::No;
    }
  }
  if (options.json) outcome.out = JsonText(answers);
}

constexpr const char* kRoundFooter =
    "Rules for VAT: H to hundredths, D to tenths, M to whole crowns, each with halves away from zero;\n"
    "P to the nearest 0.50; N to tenths away from zero.\n"
    "\n"
    "Exit status: 0, or 1 if an amount leaves the range, 2 wrong usage.\n"
    "\n"
    "Examples:\n"
    "  ravo round 1.234 --mode up               1.24\n"
    "  ravo round 1.005 -1.005                  1.01 and -1.01\n"
    "  ravo round 12345.67 --decimals -2        12300.00\n"
    "  ravo round 12,25 --dph P                 12.50\n";

}  // namespace

void AddRoundCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("round", "Rounds money as documents do");
  const auto options = std::make_shared<RoundOptions>();
  command->add_option("AMOUNT", options->amounts, "Amounts with \".\" or \",\"")
      ->required()
      ->check(CLI::Validator(CheckAmount, ""));
  CLI::Option* mode = command->add_option("--mode", options->mode,
                                          "up (away from zero), down (toward zero) or math (halves away)");
  mode->check(CLI::IsMember({"up", "down", "math"}))->capture_default_str();
  CLI::Option* decimals =
      command->add_option("--decimals", options->decimals, "Decimals to keep; -1 rounds to tens");
  decimals->check(CLI::Range(-4, 14))->capture_default_str();
  command->add_option("--dph", options->dph, "Round VAT by a rule instead: H, D, P, N or M")
      ->check(CLI::IsMember({"H", "D", "P", "N", "M"}))
      ->excludes(mode)
      ->excludes(decimals);
  command->add_flag("--json", options->json, "Write JSON");
  command->footer(kRoundFooter);
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

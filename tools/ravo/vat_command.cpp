#include "amount.h"
#include "commands.h"
#include "czech_day.h"
#include "json_text.h"
#include "program_values.h"
#include "round_answer.h"
#include "text.h"
#include <ravo/czech/vat.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {
namespace {

namespace czech = ravo::czech;

struct VatOptions {
  std::vector<std::string> amounts;
  std::string rate = "standard";
  std::string on;
  std::string crowns;
  std::string notation = "input";
  bool total = false;
  bool coefficient = false;
  bool sum = false;
  bool by_line = false;
  bool rates = false;
  bool json = false;
};

const std::map<std::string, czech::VatRateKind> kRateNames{
    {"zero", czech::VatRateKind::Zero},
    {"standard", czech::VatRateKind::Standard},
    {"reduced", czech::VatRateKind::Reduced},
    {"second-reduced", czech::VatRateKind::SecondReduced}};
const std::map<std::string, czech::CrownRounding> kCrownNames{{"nearest", czech::CrownRounding::Nearest},
                                                              {"up", czech::CrownRounding::AwayFromZero},
                                                              {"down", czech::CrownRounding::TowardZero}};

std::string_view RateName(czech::VatRateKind kind) {
  return std::ranges::find(kRateNames, kind, &std::pair<const std::string, czech::VatRateKind>::second)
      ->first;
}

// "1000:12" has its own rate, "1000" has none.
struct AmountAndRate {
  std::string amount;
  std::string rate;
};
AmountAndRate SplitAmount(const std::string& text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string::npos) return {text, {}};
  return {text.substr(0, colon), text.substr(colon + 1)};
}

std::string CheckVatAmount(const std::string& text) {
  const auto read = ReadAmount(SplitAmount(text).amount);
  const auto* const fault = std::get_if<AmountFault>(&read);
  return fault ? text + ": " + FaultText(*fault) : std::string();
}

// The kind of rate that a percentage or a name means on a day, or nothing.
std::optional<czech::VatRateKind> RateOf(const std::string& text, czech::Day day) {
  const auto named = kRateNames.find(text);
  if (named != kRateNames.end()) {
    return czech::VatPercentOn(day, named->second) ? std::optional(named->second) : std::nullopt;
  }
  int percent = 0;
  const char* const end = text.data() + text.size();
  if (std::from_chars(text.data(), end, percent).ptr != end) return std::nullopt;
  return czech::VatRateKindOn(day, percent);
}

// From a total, the way that is lawful on the day, unless the coefficient is asked for.
czech::VatMethod VatMethodOf(const VatOptions& options, czech::Day day) {
  if (options.coefficient) return czech::VatMethod::FromTotalByCoefficient;
  if (!options.total) return czech::VatMethod::FromBase;
  return czech::IsLawful(czech::VatMethod::FromTotal, day) ? czech::VatMethod::FromTotal
                                                           : czech::VatMethod::FromTotalByCoefficient;
}

void RefuseVat(Outcome& outcome, const std::string& message) {
  Complain(outcome, message, Answer::WrongUsage);
}

// A line, and how its amounts are written.
struct VatInput {
  czech::VatLine line;
  Notation notation;
};

// All lines, or nothing and a message about each that has no rate.
std::optional<std::vector<VatInput>> VatInputsOf(const VatOptions& options, czech::Day day,
                                                 Outcome& outcome) {
  std::vector<VatInput> lines;
  for (const std::string& text : options.amounts) {
    const AmountAndRate parts = SplitAmount(text);
    const std::string& rate = parts.rate.empty() ? options.rate : parts.rate;
    const auto kind = RateOf(rate, day);
    if (!kind) {
      RefuseVat(outcome, Text("no rate {0} was in force on {1}; see ravo vat --rates", {rate, DayText(day)}));
      continue;
    }
    const Amount amount = std::get<Amount>(ReadAmount(parts.amount));
    lines.push_back({{amount.value, *kind}, NotationAsked(amount.notation, options.notation)});
  }
  if (lines.size() < options.amounts.size()) return std::nullopt;
  return lines;
}

std::string VatRowText(std::string_view rate, const czech::VatAmounts& amounts, const Notation& notation) {
  std::string text(rate);
  for (const ravo::Currency amount : {amounts.base, amounts.tax, amounts.total})
    text += "\t" + AmountText(amount, notation);
  if (amounts.half) text += "\t" + Text("the exact tax ends on half a haléř");
  return text + "\n";
}

Json VatRowJson(const czech::VatAmounts& amounts) {
  return {{"base", AmountText(amounts.base)},
          {"tax", AmountText(amounts.tax)},
          {"total", AmountText(amounts.total)},
          {"half", amounts.half}};
}

Json RateRow(const czech::VatRow& row) {
  Json json{{"rate", RateName(row.rate)}, {"percent", row.percent}, {"lines", row.lines}};
  json.update(VatRowJson(row.amounts));
  return json;
}

// A row of each rate that has lines, and their sum.
void WriteRecapitulation(const czech::VatRecapitulation& result, const VatOptions& options,
                         const Notation& notation, Outcome& outcome) {
  Json rows = Json::array();
  for (const czech::VatRow& row : result.rows) {
    if (row.lines == 0) continue;
    outcome.out += VatRowText(std::to_string(row.percent) + " %", row.amounts, notation);
    rows.push_back(RateRow(row));
  }
  Json json{{"rows", rows}, {"sum", VatRowJson(result.sum)}};
  if (options.sum) outcome.out += VatRowText(Text("sum"), result.sum, notation);
  if (!options.crowns.empty()) {
    const auto rounded = czech::RoundToCrowns(result.sum.total, kCrownNames.at(options.crowns));
    if (!rounded) return RefuseVat(outcome, Text("an amount is out of range"));
    outcome.out += Text("to pay") + "\t" + AmountText(rounded.value.rounded, notation) + "\t" +
                   AmountText(rounded.value.difference, notation) + "\n";
    json["rounded"] = AmountText(rounded.value.rounded);
    json["difference"] = AmountText(rounded.value.difference);
  }
  if (options.json) outcome.out = JsonText(json);
}

// Each amount by itself.
void WriteVatLines(const std::vector<VatInput>& inputs, const VatOptions& options, czech::Day day,
                   Outcome& outcome) {
  Json rows = Json::array();
  for (const auto& [line, notation] : inputs) {
    const auto result =
        czech::Recapitulate(std::span(&line, 1), VatMethodOf(options, day), czech::VatPer::Line, day);
    if (!result) return RefuseVat(outcome, Text("an amount is out of range"));
    const czech::VatRow& row = result.value.rows[static_cast<std::size_t>(line.rate)];
    outcome.out += VatRowText(std::to_string(row.percent) + " %", row.amounts, notation);
    rows.push_back(RateRow(row));
  }
  if (options.json) outcome.out = JsonText(rows);
}

bool HasRates(czech::Day day) {
  return static_cast<bool>(czech::VatPercentOn(day, czech::VatRateKind::Standard));
}

std::string NoRates(czech::Day day) {
  return Text("no rates are known for {0}; the first are of 1 January 1993", {DayText(day)});
}

void WriteRates(const VatOptions& options, Outcome& outcome) {
  Json rows = Json::array();
  const bool one_day = !options.on.empty();
  const czech::Day day = DayOrToday(options.on);
  for (const czech::VatRate& rate : czech::VatRates()) {
    if (one_day && (day < rate.first || day > rate.last)) continue;
    const bool ended = rate.last < czech::DayOf({9999, 12, 31});
    const std::string last = ended ? DayText(rate.last) : std::string();
    outcome.out += DayText(rate.first) + "\t" + last + "\t" + std::string(RateName(rate.kind)) + "\t" +
                   std::to_string(rate.percent) + " %\t" + std::string(rate.law) + "\n";
    rows.push_back({{"first", DayText(rate.first)},
                    {"last", ended ? Json(last) : Json(nullptr)},
                    {"rate", RateName(rate.kind)},
                    {"percent", rate.percent},
                    {"law", rate.law}});
  }
  if (rows.empty()) Complain(outcome, NoRates(day), Answer::No);
  if (options.json) outcome.out = JsonText(rows);
}

void Run(const VatOptions& options, Outcome& outcome) {
  if (options.rates) return WriteRates(options, outcome);
  if (options.amounts.empty()) throw CLI::ValidationError(Text("give an amount, or --rates"));
  const czech::Day day = DayOrToday(options.on);
  if (!HasRates(day)) return RefuseVat(outcome, NoRates(day));
  const czech::VatMethod method = VatMethodOf(options, day);
  if (!czech::IsLawful(method, day)) {
    return RefuseVat(outcome, Text("this way to compute the tax was not lawful on {0}", {DayText(day)}));
  }
  const auto inputs = VatInputsOf(options, day, outcome);
  if (!inputs) return;
  if (!options.sum && options.crowns.empty()) return WriteVatLines(*inputs, options, day, outcome);
  std::vector<czech::VatLine> lines;
  for (const VatInput& input : *inputs) lines.push_back(input.line);
  const czech::VatPer per = options.by_line ? czech::VatPer::Line : czech::VatPer::Document;
  const auto result = czech::Recapitulate(lines, method, per, day);
  if (!result) return RefuseVat(outcome, Text("an amount is out of range"));
  WriteRecapitulation(result.value, options, inputs->front().notation, outcome);
}

constexpr const char* kVatFooter = ToTranslate(
    "Each line has the rate, the base, the tax and the total, written like the amount; sums like the first.\n"
    "The tax is rounded to the haléř, halves away\n"
    "from zero; the amount that was given stays, and the third is the rest. Rates and ways to compute the "
    "tax\n"
    "are those of the day. A coefficient of four decimals was lawful from 1 May 2004 to 30 September 2019,\n"
    "the division by 1 + rate is since 1 April 2019. Which goods have which rate is not known here.\n"
    "\n"
    "Exit status: 0, or 1 no rates on that day, 2 wrong usage, or a rate or a way that was not in force.\n"
    "\n"
    "Examples:\n"
    "  ravo vat 1000                                      at the standard rate of today\n"
    "  ravo vat --total 1210 112:12                       from totals, the second at 12 %\n"
    "  ravo vat --total --coefficient 1000 --on 2018-06-01\n"
    "  ravo vat --sum --crowns nearest 100:21 9.99:12     by rates, in all, and what is to pay\n"
    "  ravo vat --rates                                   all rates since 1993, with their laws\n");

void AddVatOptions(CLI::App& command, VatOptions& options) {
  command
      .add_option("--rate", options.rate,
                  Text("The rate of amounts without one: a percentage, or zero, standard, reduced or "
                       "second-reduced"))
      ->capture_default_str();
  command.add_flag("--total", options.total, Text("The amounts include the tax"));
  command.add_flag("--coefficient", options.coefficient,
                   Text("The amounts include the tax, and a coefficient of four decimals gives it"));
  CLI::Option* sum = command.add_flag("--sum", options.sum, Text("Write the sums by rates, and of all"));
  command.add_flag("--by-line", options.by_line, Text("Sum the taxes of the lines, not the tax of the sums"))
      ->needs(sum);
  command.add_option("--crowns", options.crowns, Text("Round what is to pay to crowns: nearest, up or down"))
      ->check(CLI::IsMember(kCrownNames))
      ->type_name("HOW");
  AddNotationOption(command, options.notation);
}

}  // namespace

void AddVatCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("vat", Text("Computes Czech VAT by the rates of a day"));
  command->alias("dph");
  const auto options = std::make_shared<VatOptions>();
  command
      ->add_option(Text("AMOUNT"), options->amounts,
                   Text("Amounts with \".\" or \",\", and perhaps a rate: 1000:12"))
      ->check(CLI::Validator(CheckVatAmount, ""));
  AddVatOptions(*command, *options);
  command->add_option("--on", options->on, Text("The day of the supply; today by default"))
      ->type_name(Text("DATE"))
      ->check(CLI::Validator(CheckDay, ""));
  command->add_flag("--rates", options->rates, Text("List the rates instead: first and last day, rate, law"));
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(Text(kVatFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

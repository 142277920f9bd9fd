#include "commands.h"
#include "csv_column.h"
#include "file_reason.h"
#include "input_lines.h"
#include "json_array.h"
#include "output_pieces.h"
#include "program_values.h"
#include "round_answer.h"
#include "text.h"
#include "whole_input.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;

constexpr std::size_t kMostMessages = 20;

struct RoundOptions {
  std::vector<std::string> amounts;
  std::string mode = "math";
  int decimals = 2;
  std::string dph;
  std::string notation = "input";
  std::string file;
  std::string column;
  std::string delimiter;
  std::string encoding;
  bool suite = false;
  bool json = false;
};

const std::map<std::string, common::TRoundType> kModes{
    {"up", common::rtUp}, {"down", common::rtDown}, {"math", common::rtMath}};

RoundRequest RequestOf(const RoundOptions& options) {
  const RoundRule rule = options.dph.empty() ? RoundRule{kModes.at(options.mode), options.decimals, false}
                                             : RuleOfLetter(options.dph.front());
  return {rule, options.suite, options.notation};
}

Json TextOrNull(const std::optional<ravo::Currency>& amount) {
  return amount ? Json(AmountText(*amount)) : Json();
}

Json JsonOf(const std::string& input, const RoundAnswer& answer) {
  const std::optional<ravo::Currency> amount =
      answer.amount ? std::optional(answer.amount->value) : std::nullopt;
  return {{"input", input},
          {"amount", TextOrNull(amount)},
          {"rounded", TextOrNull(answer.rounded)},
          {"suite", TextOrNull(answer.suite)},
          {"reason", answer.reason.empty() ? Json() : Json(answer.reason)}};
}

void RoundAmounts(const RoundOptions& options, Outcome& outcome) {
  const RoundRequest request = RequestOf(options);
  JsonArray answers(outcome);
  ForEachValue(options.amounts, [&](const std::string& text) {
    const RoundAnswer answer = AnswerRound(text, request);
    if (!answer.message.empty()) ComplainOfOne(outcome, text + ": " + answer.message, answer.answer);
    if (options.json) return answers.Add(JsonOf(text, answer));
    if (answer.rounded) AddOutput(outcome, text + "\t" + RoundedText(answer, request) + "\n");
  });
  if (options.json) answers.Finish();
}

// The messages about a table: the first ones, then their number.
class Messages {
 public:
  explicit Messages(Outcome& outcome) : outcome_(outcome) {}

  void Add(const std::string& message, Answer answer) {
    if (++count_ <= kMostMessages) return Complain(outcome_, message, answer);
    outcome_.answer = std::max(outcome_.answer, answer);
  }

  void Finish() {
    const auto left = static_cast<std::int64_t>(count_ - std::min(count_, kMostMessages));
    if (left > 0)
      Complain(outcome_, TextOf(left, "{0} more message left out", "{0} more messages left out"),
               Answer::Yes);
  }

 private:
  Outcome& outcome_;
  std::size_t count_ = 0;
};

void RoundColumn(const RoundOptions& options, const CsvColumn& column, std::string_view table,
                 Outcome& outcome) {
  const RoundRequest request = RequestOf(options);
  Messages messages(outcome);
  const auto place = [&](std::size_t line) {
    return Text("{0}: line {1}", {options.file, std::to_string(line)}) + ": ";
  };
  const auto change = [&](std::size_t line, const std::string& value) -> std::optional<std::string> {
    if (value.find_first_not_of(' ') == std::string::npos) return {};
    const RoundAnswer answer = AnswerRound(value, request);
    if (!answer.message.empty()) messages.Add(place(line) + value + ": " + answer.message, answer.answer);
    return answer.rounded ? std::optional(RoundedText(answer, request)) : std::nullopt;
  };
  const auto missing = [&](std::size_t line) {
    messages.Add(place(line) + Text("the row has no field in this column"), Answer::WrongUsage);
  };
  outcome.out = ChangeCsvColumn(table, column, change, missing);
  messages.Finish();
}

void RoundFile(const RoundOptions& options, Outcome& outcome) {
  const CsvColumn column{options.column, DelimiterOf(options.delimiter), TableEncodingOf(options.encoding)};
  const std::optional<std::string> table = ReadWhole(options.file);
  if (!table) return Complain(outcome, UnreadableMessage(options.file), Answer::WrongUsage);
  try {
    RoundColumn(options, column, *table, outcome);
  } catch (const std::runtime_error& error) {
    Complain(outcome, options.file + ": " + error.what(), Answer::WrongUsage);
  }
}

void Run(const RoundOptions& options, Outcome& outcome) {
  if (options.amounts.empty() && options.file.empty())
    return Complain(outcome, Text("give amounts, or --csv and --column"), Answer::WrongUsage);
  return options.file.empty() ? RoundAmounts(options, outcome) : RoundFile(options, outcome);
}

constexpr const char* kRoundFooter = ToTranslate(
    "Amounts are read as people write them: 1234.56, 1 234,56 Kč, 1.234,56, .5 or -12,-. A single point\n"
    "or comma separates decimals, except in 12.500,-; 12.500 Kč and 12,500 € are refused, as they may be\n"
    "thousands. The answer is written like the amount.\n"
    "\n"
    "Modes: up is away from zero, down is toward zero, math is to the nearest with halves away from zero.\n"
    "Rules for VAT: H to hundredths, D to tenths, M to whole crowns, each with halves away from zero;\n"
    "P to the nearest 0.50; N to tenths away from zero.\n"
    "\n"
    "Results are exact for every amount from -922337203685477.5808 to 922337203685477.5807. The suite's\n"
    "modules count in 32 bits with up, down and N, so they wrap for large amounts; where they compute\n"
    "another result, a line on standard error says so.\n"
    "\n"
    "Exit status: 0, or 1 if an amount has no result, 2 wrong usage or a text that is no amount.\n"
    "\n"
    "Examples:\n"
    "  ravo round 1.234 --mode up               1.24\n"
    "  ravo round 1.005 -1.005                  1.01 and -1.01\n"
    "  ravo round \"1 234,567 Kč\"                1 234,57 Kč\n"
    "  ravo round 12345.67 --decimals -2        12300.00\n"
    "  ravo round 12,25 --dph P                 12,50\n"
    "  ravo round 25000000 --mode up --suite    refused: the suite's modules wrap\n"
    "  ravo round --csv samples/ledger.csv --column Částka --dph M > rounded.csv\n");

void AddRules(CLI::App& command, RoundOptions& options) {
  CLI::Option* mode = command.add_option(
      "--mode", options.mode, Text("up (away from zero), down (toward zero) or math (halves away)"));
  mode->check(CLI::IsMember({"up", "down", "math"}))->capture_default_str();
  CLI::Option* decimals =
      command.add_option("--decimals", options.decimals, Text("Decimals to keep; -1 rounds to tens"));
  decimals->check(CLI::Range(-4, 14))->capture_default_str();
  command.add_option("--dph", options.dph, Text("Round VAT by a rule instead: H, D, P, N or M"))
      ->check(CLI::IsMember({"H", "D", "P", "N", "M"}, CLI::ignore_case))
      ->excludes(mode)
      ->excludes(decimals);
  command.add_flag("--suite", options.suite, Text("Compute as the suite's modules do"));
}

void AddTable(CLI::App& command, RoundOptions& options, CLI::Option* amounts, CLI::Option* json) {
  CLI::Option* file = command.add_option(
      "--csv", options.file, Text("Round a column of a table and write the table; - is standard input"));
  file->type_name(Text("FILE"))->excludes(amounts)->excludes(json);
  CLI::Option* column = command.add_option("--column", options.column, Text("The column, by name or number"));
  column->needs(file);
  file->needs(column);
  AddDelimiterOption(command, options.delimiter)->needs(file);
  AddTableEncodingOption(command, options.encoding)->needs(file);
}

}  // namespace

void AddRoundCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("round", Text("Rounds money as documents do"));
  const auto options = std::make_shared<RoundOptions>();
  CLI::Option* amounts = command->add_option(
      Text("AMOUNT"), options->amounts, Text("Amounts; - reads them from standard input, one in a line"));
  AddRules(*command, *options);
  AddNotationOption(*command, options->notation);
  CLI::Option* json = command->add_flag("--json", options->json, Text("Write JSON"));
  AddTable(*command, *options, amounts, json);
  command->footer(Text(kRoundFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

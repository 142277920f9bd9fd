#include "commands.h"
#include "console.h"
#include "file_hash.h"
#include "file_reason.h"
#include "json_text.h"
#include "kind_lines.h"
#include "text.h"
#include "whole_input.h"

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tool {
namespace {

struct HashOptions {
  std::vector<std::string> words;
  bool all = false;
  bool check = false;
  bool json = false;
};

// The parsed arguments: an optional kind of sum, and files.
struct HashTask {
  const FileSumKind* kind = nullptr;
  std::vector<std::string> files;
};

std::string Names() {
  std::string names;
  for (const FileSumKind& kind : kFileSums) names += (names.empty() ? "" : ", ") + std::string(kind.name);
  return names;
}

HashTask TaskOf(const HashOptions& options) {
  HashTask task{nullptr, options.words};
  if (!options.all && !task.files.empty()) task.kind = FileSumNamed(task.files.front());
  if (task.kind) task.files.erase(task.files.begin());
  if (!task.kind && !options.all && !options.check)
    throw CLI::ValidationError(Text("the first word must be a sum, one of {0}; or use --all", {Names()}));
  if (task.files.empty()) task.files.emplace_back(kInputName);
  return task;
}

std::uint32_t SumOf(const FileSums& sums, const FileSumKind& kind) {
  return sums[static_cast<std::size_t>(kind.sum)];
}

// The notation of sums in files, which JSON has no numbers for.
std::string SumText(std::uint32_t sum) {
  const std::string line = SumLineText({"", sum, ""});
  return line.substr(0, line.find(' '));
}

void AddSums(const HashTask& task, const std::string& name, const FileSums& sums, Outcome& outcome,
             Json& answers) {
  Json answer = {{"file", name}};
  for (const FileSumKind& kind : kFileSums) {
    if (task.kind && task.kind != &kind) continue;
    const std::string label(task.kind ? "" : kind.label);
    outcome.out += SumLineText({label, SumOf(sums, kind), name});
    answer[std::string(kind.name)] = SumText(SumOf(sums, kind));
  }
  answers.push_back(answer);
}

void Compute(const HashTask& task, bool json, Outcome& outcome) {
  Json answers = Json::array();
  for (const std::string& name : task.files) {
    if (const auto sums = SumsOfFile(name, task.kind))
      AddSums(task, name, *sums, outcome, answers);
    else
      Complain(outcome, UnreadableMessage(name), Answer::WrongUsage);
  }
  if (json) outcome.out = JsonText(answers);
}

struct Tally {
  std::int64_t good = 0;
  std::int64_t bad = 0;
  std::int64_t unreadable = 0;
  std::int64_t other_lines = 0;
  Json rows = Json::array();
};

// Returns the kind of a line: its own label, or the one given on the command line.
const FileSumKind* KindOf(const SumLine& line, const FileSumKind* said) {
  return line.label.empty() ? said : FileSumLabelled(line.label);
}

void CheckLine(const SumLine& line, const FileSumKind& kind, Tally& tally, Outcome& outcome) {
  const auto sums = SumsOfFile(line.name, &kind);
  const bool good = sums && SumOf(*sums, kind) == line.sum;
  ++(good ? tally.good : sums ? tally.bad : tally.unreadable);
  const std::string verdict = good ? "OK" : sums ? "FAILED" : "FAILED open or read";
  outcome.out += line.name + ": " + verdict + "\n";
  tally.rows.push_back({{"file", line.name}, {"sum", kind.name}, {"result", verdict}});
}

Tally CheckLines(std::istream& list, const FileSumKind* said, Outcome& outcome) {
  Tally tally;
  for (std::string text; std::getline(list, text);) {
    if (text.ends_with('\r')) text.pop_back();
    if (text.empty() || text.starts_with('#')) continue;
    const auto line = ParseSumLine(text);
    const FileSumKind* kind = line ? KindOf(*line, said) : nullptr;
    if (kind)
      CheckLine(*line, *kind, tally, outcome);
    else
      ++tally.other_lines;
  }
  return tally;
}

void Report(const std::string& name, const Tally& tally, Outcome& outcome) {
  const auto complain = [&](const std::string& what, Answer answer) {
    Complain(outcome, name + ": " + what, answer);
  };
  if (tally.other_lines > 0)
    complain(TextOf(tally.other_lines, "one line is not a sum", "{0} lines are not sums"), Answer::No);
  if (tally.unreadable > 0)
    complain(TextOf(tally.unreadable, "one listed file cannot be read", "{0} listed files cannot be read"),
             Answer::WrongUsage);
  if (tally.bad > 0)
    complain(TextOf(tally.bad, "one sum does NOT match", "{0} sums do NOT match"), Answer::No);
  if (tally.good + tally.bad + tally.unreadable == 0)
    complain(Text("there is no line with a sum"), Answer::WrongUsage);
}

void CheckList(const HashTask& task, const std::string& name, Outcome& outcome, Json& rows) {
  const auto text = ReadWhole(name);
  if (!text) return Complain(outcome, UnreadableMessage(name), Answer::WrongUsage);
  std::istringstream list(*text);
  Tally tally = CheckLines(list, task.kind, outcome);
  Report(name, tally, outcome);
  for (Json& row : tally.rows) rows.push_back(std::move(row));
}

void CheckLists(const HashTask& task, bool json, Outcome& outcome) {
  Json rows = Json::array();
  for (const std::string& name : task.files) CheckList(task, name, outcome, rows);
  if (json) outcome.out = JsonText(rows);
}

void Run(const HashOptions& options, Outcome& outcome) {
  const HashTask task = TaskOf(options);
  return options.check ? CheckLists(task, options.json, outcome) : Compute(task, options.json, outcome);
}

std::string HashFooter() {
  return Text("Sums:") + "\n" + KindLines(kFileSums) + "\n" +
         Text(
             "Exit status: 0, 1 a sum does not match or a line is not a sum, 2 wrong usage or a file that\n"
             "cannot be read.\n"
             "\n"
             "Examples:\n"
             "  ravo hash crc32 backup.zip > backup.sum\n"
             "  ravo hash crc32 --check backup.sum\n"
             "  ravo report | ravo hash crc32             the output of a program\n"
             "  ravo hash --all backup.zip              every sum, each with its name\n"
             "  ravo hash --all --json backup.zip\n");
}

}  // namespace

void AddHashCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("hash", Text("Computes and checks sums of files"));
  const auto options = std::make_shared<HashOptions>();
  // The set is for completion: the words after the first are files.
  const auto any_word = [](const std::string&) { return std::string(); };
  command
      ->add_option(Text("SUM FILE"), options->words,
                   Text("The kind of sum ({0}), then files; standard input for \"-\" or no file", {Names()}))
      ->check(CLI::Validator(any_word, "{" + CLI::detail::find_and_replace(Names(), ", ", ",") + "}"));
  command->add_flag("--all", options->all, Text("Compute every sum; all words are files"));
  command->add_flag("--check", options->check,
                    Text("The files are lists of sums; compare each with the current file"));
  command->add_flag("--json", options->json, Text("Write JSON"));
  command->footer(HashFooter());
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

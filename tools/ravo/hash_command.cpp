#include "commands.h"
#include "console.h"
#include "file_hash.h"
#include "json_text.h"
#include "kind_lines.h"
#include "whole_input.h"

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace tool {
namespace {

struct HashOptions {
  std::vector<std::string> words;
  bool all = false;
  bool check = false;
  bool json = false;
};

// What the words say: a kind of sum in front or not, and files.
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
    throw CLI::ValidationError("hash: the first word must be one of " + Names() + ", or say --all");
  if (task.files.empty()) task.files.emplace_back(kInputName);
  return task;
}

std::uint32_t SumOf(const FileSums& sums, const FileSumKind& kind) {
  return sums[static_cast<std::size_t>(kind.sum)];
}

void Complain(Outcome& outcome, const std::string& name, const std::string& what, Answer answer) {
  outcome.err += "ravo: " + name + ": " + what + "\n";
  if (outcome.answer != Answer::WrongUsage) outcome.answer = answer;
}

void AddSums(const HashTask& task, const std::string& name, const FileSums& sums, Outcome& outcome,
             Json& answers) {
  Json answer = {{"file", name}};
  for (const FileSumKind& kind : kFileSums) {
    if (task.kind && task.kind != &kind) continue;
    const std::string label(task.kind ? "" : kind.label);
    outcome.out += SumLineText({label, SumOf(sums, kind), name});
    answer[std::string(kind.name)] = SumOf(sums, kind);
  }
  answers.push_back(answer);
}

void Compute(const HashTask& task, bool json, Outcome& outcome) {
  Json answers = Json::array();
  for (const std::string& name : task.files) {
    if (const auto sums = SumsOfFile(name, task.kind))
      AddSums(task, name, *sums, outcome, answers);
    else
      Complain(outcome, name, "cannot be read", Answer::WrongUsage);
  }
  if (json) outcome.out = JsonText(answers);
}

struct Tally {
  std::size_t good = 0;
  std::size_t bad = 0;
  std::size_t unreadable = 0;
  std::size_t other_lines = 0;
};

// The kind of a line: its own label, or what the command line says.
const FileSumKind* KindOf(const SumLine& line, const FileSumKind* said) {
  return line.label.empty() ? said : FileSumLabelled(line.label);
}

void CheckLine(const SumLine& line, const FileSumKind& kind, Tally& tally, Outcome& outcome) {
  const auto sums = SumsOfFile(line.name, &kind);
  const bool good = sums && SumOf(*sums, kind) == line.sum;
  ++(good ? tally.good : sums ? tally.bad : tally.unreadable);
  outcome.out += line.name + (good ? ": OK\n" : sums ? ": FAILED\n" : ": FAILED open or read\n");
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
  const auto complain = [&](std::size_t count, const std::string& what) {
    if (count > 0) Complain(outcome, name, std::to_string(count) + " " + what, Answer::No);
  };
  complain(tally.other_lines, "lines are no sums");
  complain(tally.unreadable, "listed files could not be read");
  complain(tally.bad, "sums do NOT match");
  if (tally.good + tally.bad + tally.unreadable == 0)
    Complain(outcome, name, "no line of it is a sum", Answer::WrongUsage);
}

void CheckList(const HashTask& task, const std::string& name, Outcome& outcome) {
  const auto text = ReadWhole(name);
  if (!text) return Complain(outcome, name, "cannot be read", Answer::WrongUsage);
  std::istringstream list(*text);
  Report(name, CheckLines(list, task.kind, outcome), outcome);
}

void CheckLists(const HashTask& task, Outcome& outcome) {
  for (const std::string& name : task.files) CheckList(task, name, outcome);
}

void Run(const HashOptions& options, Outcome& outcome) {
  const HashTask task = TaskOf(options);
  return options.check ? CheckLists(task, outcome) : Compute(task, options.json, outcome);
}

std::string HashFooter() {
  return "Sums:\n" + KindLines(kFileSums) +
         "\n"
         "Exit status: 0, 1 a sum does not match or a line of a list is none, 2 wrong usage or an unusable "
         "file.\n"
         "\n"
         "Examples:\n"
         "  ravo hash crc32 backup.zip > backup.sum\n"
         "  ravo hash crc32 --check backup.sum\n"
         "  ravo report | ravo hash crc32             what a program writes\n"
         "  ravo hash --all backup.zip              every sum, each with its name\n"
         "  ravo hash --all --json backup.zip\n";
}

}  // namespace

void AddHashCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("hash", "Computes and checks sums of files");
  const auto options = std::make_shared<HashOptions>();
  command->add_option("SUM FILE", options->words,
                      "Which sum (" + Names() + "), and the files; none, or \"-\", is standard input");
  command->add_flag("--all", options->all, "Every sum; the words are all files");
  CLI::Option* check = command->add_flag(
      "--check", options->check, "The files are lists of sums; compare each with its file as it is now");
  command->add_flag("--json", options->json, "Write JSON")->excludes(check);
  command->footer(HashFooter());
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

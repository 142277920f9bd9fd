#include "commands.h"
#include "foreign_text.h"
#include "whole_input.h"
#include <ravo/DIUtils.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tool {
namespace {

namespace utils = ravo::DIUtils;
using TextLine = std::u16string;
using TextLines = std::vector<TextLine>;

struct SortOptions {
  std::vector<std::string> files;
  bool natural = false;
  bool ignore_case = false;
};

void AddLines(const std::string& bytes, TextLines& lines) {
  const std::u16string text = ravo::FromUtf8(ForeignText(bytes));
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find(u'\n', start), text.size());
    lines.push_back(text.substr(start, end - start));
    if (lines.back().ends_with(u'\r')) lines.back().pop_back();
    start = end + 1;
  }
}

using Order = std::ptrdiff_t (*)(std::u16string_view, std::u16string_view) noexcept;

Order OrderOf(const SortOptions& options) {
  if (options.natural) return options.ignore_case ? utils::StrCompNumIW : utils::StrCompNumW;
  return options.ignore_case ? utils::StrCompIW : utils::StrCompW;
}

// A merge sort of our own: the natural order is not transitive, which the standard library's algorithms
// require.
void Sort(std::span<TextLine> lines, Order order) {
  if (lines.size() < 2) return;
  const std::span<TextLine> left = lines.first(lines.size() / 2);
  const std::span<TextLine> right = lines.subspan(lines.size() / 2);
  Sort(left, order);
  Sort(right, order);
  TextLines merged;
  merged.reserve(lines.size());
  auto from_left = left.begin();
  auto from_right = right.begin();
  while (from_left != left.end() && from_right != right.end()) {
    merged.push_back(std::move(order(*from_right, *from_left) < 0 ? *from_right++ : *from_left++));
  }
  std::move(from_left, left.end(), std::back_inserter(merged));
  std::move(from_right, right.end(), std::back_inserter(merged));
  std::move(merged.begin(), merged.end(), lines.begin());
}

void Run(const SortOptions& options, Outcome& outcome) {
  TextLines lines;
  for (const std::string& name : options.files) {
    const std::optional<std::string> bytes = ReadWhole(name);
    if (!bytes) {
      outcome.err += "ravo: " + name + ": cannot be read\n";
      outcome.answer = Answer::WrongUsage;
      return;
    }
    AddLines(*bytes, lines);
  }
  Sort(lines, OrderOf(options));
  for (const TextLine& line : lines) outcome.out += ravo::ToUtf8(line) + "\n";
}

constexpr const char* kSortFooter =
    "Output is UTF-8. Without an option, lines are sorted by character codes.\n"
    "\n"
    "Exit status: 0, or 2 wrong usage or an unusable file.\n"
    "\n"
    "Examples:\n"
    "  ravo sort --natural files.txt                      faktura9 before faktura10\n"
    "  ls | ravo sort --natural --ignore-case -\n";

}  // namespace

void AddSortCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("sort", "Sorts lines, optionally with numbers by value");
  const auto options = std::make_shared<SortOptions>();
  command->add_option("FILE", options->files, "Files in UTF-8 or the 8-bit code page; - for standard input")
      ->required();
  command->add_flag("--natural", options->natural, "Compare runs of digits by value");
  command->add_flag("--ignore-case", options->ignore_case, "Ignore case");
  command->footer(kSortFooter);
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

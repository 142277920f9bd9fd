#include "commands.h"
#include "console.h"
#include "line_sort.h"
#include "output_file.h"
#include "program_values.h"
#include "sort_input.h"
#include "text.h"
#include <ravo/DIUtils.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tool {
namespace {

namespace utils = ravo::DIUtils;

struct SortOptions {
  std::vector<std::string> files;
  std::string encoding = "UTF-8";
  std::string output{kInputName};
  LineOrder order;
  bool header = false;
  bool suite = false;
};

SuiteOrder SuiteOrderOf(const CzechOrder& order) {
  if (order.natural) return order.ignore_case ? utils::StrCompNumIW : utils::StrCompNumW;
  return order.ignore_case ? utils::StrCompIW : utils::StrCompW;
}

// Tells where the order of the suite differs. It has no fields and no amounts.
std::string Remark(const Lines& sorted, const SortOptions& options) {
  if (options.suite || !options.order.fields.empty() || options.order.numeric) return {};
  std::size_t line = FirstUnlikeTheSuite(sorted, SuiteOrderOf(options.order.czech), options.order.reverse);
  if (line == 0) return {};
  if (options.header) ++line;
  return Text("the order of the suite differs from line {0} on; --suite shows it", {std::to_string(line)});
}

Lines InOrder(const Lines& lines, const SortOptions& options) {
  const LineOrder& order = options.order;
  return options.suite ? SortedAsInTheSuite(lines, SuiteOrderOf(order.czech), order.reverse, order.unique)
                       : Sorted(lines, order);
}

constexpr std::size_t kWrittenAtOnce = std::size_t{1} << 20;

// Writes lines in the encoding in which they came; a terminal gets UTF-8.
std::string WriteLines(std::optional<std::string_view> header, const Lines& lines, const SortInput& input,
                       const std::string& name) {
  const bool shown = name == kInputName && IsTerminal(Channel::Out);
  WholeFile file(name);
  std::string piece(input.Mark());
  if (header) piece.append(*header) += '\n';
  const auto flush = [&] {
    static_cast<void>(file.Write(shown ? piece : input.InEncoding(piece)));
    piece.clear();
  };
  for (const std::string_view line : lines) {
    piece.append(line) += '\n';
    if (piece.size() >= kWrittenAtOnce) flush();
  }
  flush();
  return file.Finish();
}

void Run(const SortOptions& options, Outcome& outcome) {
  const auto fail = [&outcome](const std::string& why) { Complain(outcome, why, Answer::WrongUsage); };
  try {
    SortInput input(options.encoding);
    if (options.files.empty()) input.Add(std::string(kInputName));
    for (const std::string& name : options.files) input.Add(name);
    const auto header = options.header ? input.TakeHeader() : std::nullopt;
    const Lines sorted = InOrder(input.AllLines(), options);
    const std::string failure = WriteLines(header, sorted, input, options.output);
    if (!failure.empty()) return fail(options.output + ": " + failure);
    const std::string remark = Remark(sorted, options);
    if (!remark.empty()) Complain(outcome, remark, Answer::Yes);
  } catch (const std::exception& error) {
    fail(error.what());
  }
}

constexpr const char* kSortFooter = ToTranslate(
    "The order is the Czech alphabetical one: c, č, ... h, ch, ... r, ř, s, š, ... z, ž. Of words with\n"
    "the same letters, accents decide, then capitals: small letters come first. Blanks and signs\n"
    "precede letters, digits follow them (ČSN 97 6030). Lines with equal keys stay in the order in\n"
    "which they came.\n"
    "\n"
    "Lines keep their bytes and line ends; the output is in the encoding of the files, on a terminal\n"
    "in UTF-8. --suite sorts as the modules of the suite do: by character codes, and numbers not\n"
    "always by value.\n"
    "\n"
    "Exit status: 0 sorted; 2 wrong usage, a file that cannot be read or written, or bytes that are not of\n"
    "the encoding.\n"
    "\n"
    "Examples:\n"
    "  ravo sort names.txt -o names.txt                   in place: a file is replaced once all is written\n"
    "  ravo sort --natural files.txt                      FV9 before FV10\n"
    "  ravo sort -t ';' -k 3 -r --header ledger.csv       by the third field, from the end, below the names\n"
    "  ravo sort -n -k 2 amounts.txt                      by amounts such as 1 234,50\n"
    "  ls | ravo sort --natural --ignore-case -\n");

}  // namespace

void AddSortCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("sort", Text("Sorts lines in Czech alphabetical order"));
  const auto options = std::make_shared<SortOptions>();
  LineOrder& order = options->order;
  command->add_option(Text("FILE"), options->files, Text("Files; none, or -, is standard input"));
  command->add_flag("--natural", order.czech.natural, Text("Compare runs of digits by value"));
  command
      ->add_flag("-n,--numeric", order.numeric, Text("Compare the numbers at the start, such as -1 234,50"))
      ->excludes("--natural");
  command->add_flag("--ignore-case", order.czech.ignore_case, Text("Ignore case"));
  command->add_flag("--digits-first", order.czech.digits_first, Text("Digits before letters"));
  command->add_flag("-r,--reverse", order.reverse, Text("From the last to the first"));
  command->add_flag("-u,--unique", order.unique, Text("Only the first of equal lines"));
  CLI::Option* field =
      command
          ->add_option("-k,--key", order.fields, Text("Compare this field; several times for further ones"))
          ->type_name(Text("FIELD"))
          ->allow_extra_args(false)
          ->check(AtLeast(1));
  command->add_option("-t,--delimiter", order.delimiter, Text("What is between fields; else runs of blanks"))
      ->type_name(Text("TEXT"))
      ->needs(field);
  CLI::Option* header = command->add_flag(
      "--header", options->header, Text("Keep the first line at the top, once if all files begin with it"));
  command->add_option("--encoding", options->encoding, Text("The encoding of the files"))
      ->type_name(Text("ENCODING"))
      ->capture_default_str();
  command->add_flag("--suite", options->suite, Text("The order of the suite"))
      ->excludes(field)
      ->excludes(header)
      ->excludes("--numeric")
      ->excludes("--digits-first");
  command->add_option("-o,--output", options->output, Text("The file to write; - is standard output"))
      ->type_name(Text("FILE"));
  command->footer(Text(kSortFooter));
  command->callback([options, &outcome] { Run(*options, outcome); });
}

}  // namespace tool

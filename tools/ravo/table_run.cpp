#include "table_run.h"

#include "encoding_guess.h"
#include "ordered_blocks.h"
#include "table_columns.h"
#include "table_shape.h"
#include "text.h"

#include <algorithm>
#include <deque>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace tool {
namespace {

constexpr unsigned kMostThreads = 16;

[[noreturn]] void BreakHeader(std::size_t line, Reason reason) {
  throw std::runtime_error(
      Text("line {0}: {1}, in the row with column names", {std::to_string(line), Described(reason)}));
}

}  // namespace

TableRun::TableRun(const TableJob& job, const std::string& name, TableOutput& output)
    : job_(job),
      name_(name),
      output_(output),
      input_(name),
      reader_([this](std::span<char> to) { return input_.Read(to); }),
      progress_(name, input_.Size()) {}

bool TableRun::Run() {
  Begin();
  CheckFirstBlock();
  CheckRest();
  if (!input_.HasFailed()) return split_->Finish();
  Complain(name_, Text("cannot be read to its end"));
  return false;
}

void TableRun::Begin() {
  const std::string_view sample = reader_.Peek(kSampleSize);
  if (sample.empty() && input_.HasFailed()) throw std::runtime_error(Text("cannot be read to its end"));
  const std::size_t mark = DecideText(sample);
  mark_ = sample.substr(0, mark);
  DecideDelimiter(sample.substr(mark));
  reader_.Begin(rules_.delimiter, mark);
  rules_.allow_empty = job_.allow_empty;
  rules_.limit = job_.limit;
}

std::size_t TableRun::DecideText(std::string_view sample) {
  const ravo::DIUnicode::EncodingRow* encoding = job_.encoding;
  if (encoding == nullptr) {
    const EncodingGuess guess = GuessTableEncoding(sample);
    if (!guess.certain) doubt_ = guess.why;
    encoding = ravo::DIUnicode::FindEncoding(guess.encoding);
  }
  if (!TableText::CanRead(*encoding)) {
    throw std::runtime_error(
        Text("is {0}; convert it first: ravo convert -f auto -t utf-8", {encoding->label}));
  }
  text_.emplace(*encoding);
  rules_.text = &*text_;
  return encoding->name == "UTF_8" ? MarkSize(sample) : 0;
}

void TableRun::DecideDelimiter(std::string_view sample) {
  rules_.delimiter = job_.delimiter != '\0' ? job_.delimiter : DetectDelimiter(sample, reader_.IsAtEnd());
  if (job_.delimiter == '\0' || job_.encoding == nullptr) TellDecided();
}

void TableRun::TellDecided() const {
  const std::string delimiter = DelimiterName(rules_.delimiter);
  Complain(name_, doubt_.empty() ? Text("{0}, delimiter {1}", {text_->Label(), delimiter})
                                 : Text("{0} ({2}), delimiter {1}", {text_->Label(), delimiter, doubt_}));
}

// The first block has the row with the names of the columns, which all workers need.
void TableRun::CheckFirstBlock() {
  BlockWork first;
  TableRow header;
  if (!reader_.Next(first.block) || !RowScanner(first.block.Text(), rules_.delimiter).Next(header)) {
    throw std::runtime_error(Text("has no first row with column names"));
  }
  ReadHeader(first.block.Text(), header);
  split_.emplace(job_.rejects, job_.clean);
  split_->Add(mark_, {});
  TableChecker checker(rules_);
  checker.Check(first, header.end, 1 + CountLineEnds(first.block.Text().substr(0, header.end)),
                [&] { WriteWork(first); });
  WriteWork(first);
  counts_.Add(checker.Counts());
}

void TableRun::ReadHeader(std::string_view text, const TableRow& header) {
  const bool is_open = header.quote == OpeningQuote::Fate::Open;
  if (header.quote != OpeningQuote::Fate::Closed) {
    BreakHeader(header.quote_line, is_open ? Reason::OpenQuote : Reason::TextAfterQuote);
  }
  if (text_->FirstWrong(text.substr(0, header.end), 0) < header.end)
    BreakHeader(header.line, Reason::WrongByte);
  std::vector<std::string> names;
  std::string space;
  for (std::size_t i = 0; i < header.fields.size(); ++i) {
    names.push_back(text_->Utf8(ValueOf(header.fields[i], space)));
  }
  rules_.fields = names.size();
  for (const ColumnRequest& request : job_.columns) AddColumn(names, request);
  lines_.emplace(name_, job_.files.size() > 1 ? name_ : std::string(), rules_.columns, *text_, job_.json);
  rules_.lines = &*lines_;
}

void TableRun::AddColumn(const std::vector<std::string>& names, const ColumnRequest& request) {
  const FoundColumn found = FindColumn(names, request.name, rules_.delimiter);
  if (!found.index) throw std::runtime_error(found.why);
  rules_.columns.push_back({names[*found.index], request.kind, *found.index});
}

void TableRun::CheckRest() {
  const unsigned threads = Threads();
  std::mutex adding;
  std::deque<TableChecker> checkers;
  const auto read = [this](BlockWork& work) {
    work.is_done = false;
    return reader_.Next(work.block);
  };
  const auto check = [&] {
    const std::lock_guard lock(adding);
    return [&checker = checkers.emplace_back(rules_)](BlockWork& work, const auto& write_early) {
      checker.Check(work, 0, work.block.first_line, [&] {
        if (!write_early()) work.lines.clear();
      });
    };
  };
  const auto write = [this](BlockWork& work) {
    WriteWork(work);
    return true;
  };
  OrderedBlocks<BlockWork>(std::size_t{threads} * 2).Run(threads, read, check, write);
  for (const TableChecker& checker : checkers) counts_.Add(checker.Counts());
}

unsigned TableRun::Threads() const {
  if (reader_.IsAtEnd()) return 1;
  const unsigned processors = std::max(1U, std::thread::hardware_concurrency());
  return std::min(job_.threads != 0 ? job_.threads : processors, kMostThreads);
}

// Called for one block at a time, in the order of the table.
void TableRun::WriteWork(BlockWork& work) {
  output_.WriteLimited(work.lines, work.findings);
  work.lines.clear();
  work.findings = 0;
  if (!work.is_done) return;
  split_->Add(work.block.Text(), work.rejected);
  work.rejected.clear();
  // A bar among lines on a terminal would spoil both.
  if (!output_.IsTerminal()) progress_.Show(static_cast<std::int64_t>(work.block.offset));
}

}  // namespace tool

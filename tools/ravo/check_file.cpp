#include "check_file.h"

#include "check_texts.h"
#include "console.h"
#include "progress.h"
#include "table_checker.h"
#include "table_columns.h"
#include "table_input.h"
#include "table_output.h"
#include "table_shape.h"
#include "text_file.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

namespace tool {
namespace {

constexpr unsigned kMostThreads = 16;

void Complain(const std::string& file, const std::string& what) {
  static_cast<void>(
      Write(Channel::Err, "ravo check: " + (file.empty() ? "" : Shown(file) + ": ") + what + "\n"));
}

// The rows with findings and the others, each in a file of its own if that is wanted.
class SplitFiles {
 public:
  explicit SplitFiles(const TableJob& job) {
    if (!job.rejects.empty()) rejects_.emplace(job.rejects);
    if (!job.clean.empty()) clean_.emplace(job.clean);
  }

  void Add(std::string_view text, const std::vector<BlockWork::Piece>& rejected) {
    std::size_t at = 0;
    for (const BlockWork::Piece& piece : rejected) {
      Add(clean_, text.substr(at, piece.begin - at));
      Add(rejects_, text.substr(piece.begin, piece.end - piece.begin));
      at = piece.end;
    }
    Add(clean_, text.substr(at));
  }

  // Returns whether both files are written.
  [[nodiscard]] bool Finish(const TableJob& job) {
    return Finish(rejects_, job.rejects) && Finish(clean_, job.clean);
  }

 private:
  static void Add(std::optional<WholeFile>& file, std::string_view bytes) {
    if (file) file->Write(bytes);
  }

  static bool Finish(std::optional<WholeFile>& file, const std::string& name) {
    const std::string failure = file ? file->Finish() : std::string();
    if (!failure.empty()) Complain(name, failure);
    return failure.empty();
  }

  std::optional<WholeFile> rejects_;
  std::optional<WholeFile> clean_;
};

class TableRun {
 public:
  TableRun(const TableJob& job, const std::string& name, TableOutput& output)
      : job_(job),
        name_(name),
        output_(output),
        input_(name),
        reader_([this](std::span<char> to) { return input_.Read(to); }),
        progress_(name, input_.Size()) {}

  // Throws `std::runtime_error` if the table cannot be checked. Returns false if some of it could not be.
  bool Run() {
    Begin();
    CheckFirstBlock();
    CheckRest();
    if (!input_.HasFailed()) return split_->Finish(job_);
    Complain(name_, Say(CheckText::ReadFailed));
    return false;
  }

  [[nodiscard]] const TableCounts& Counts() const { return counts_; }
  [[nodiscard]] const std::vector<CheckedColumn>& Columns() const { return rules_.columns; }

 private:
  void Begin() {
    const std::string_view sample = reader_.Peek(kSampleSize);
    if (sample.empty() && input_.HasFailed()) throw std::runtime_error(Say(CheckText::ReadFailed));
    const std::size_t mark = DecideText(sample);
    mark_ = sample.substr(0, mark);
    DecideDelimiter(sample.substr(mark));
    reader_.Begin(rules_.delimiter, mark);
    rules_.allow_empty = job_.allow_empty;
    rules_.limit = job_.limit;
  }

  std::size_t DecideText(std::string_view sample) {
    const auto& encoding = job_.encoding ? *job_.encoding : DetectEncoding(sample, reader_.IsAtEnd());
    if (!job_.encoding && encoding.engine != "SingleByte" && encoding.name != "UTF_8") {
      throw std::runtime_error(Say(CheckText::WideText, {encoding.label}));
    }
    text_.emplace(encoding);
    rules_.text = &*text_;
    return encoding.name == "UTF_8" ? MarkSize(sample) : 0;
  }

  void DecideDelimiter(std::string_view sample) {
    rules_.delimiter = job_.delimiter != '\0' ? job_.delimiter : DetectDelimiter(sample, reader_.IsAtEnd());
    if (job_.delimiter != '\0' && job_.encoding) return;
    Complain(name_, Say(CheckText::Detected, {text_->Label(), DelimiterName(rules_.delimiter)}));
  }

  // The first block has the row with the names of the columns, which all workers need.
  void CheckFirstBlock() {
    BlockWork first;
    TableRow header;
    if (!reader_.Next(first.block) || !RowScanner(first.block.Text(), rules_.delimiter).Next(header)) {
      throw std::runtime_error(Say(CheckText::NoFirstRow));
    }
    ReadHeader(first.block.Text(), header);
    split_.emplace(job_);
    split_->Add(mark_, {});
    TableChecker checker(rules_, [this](BlockWork& work) { WriteWork(work); });
    checker.Check(first, header.end, 1 + CountLineEnds(first.block.Text().substr(0, header.end)));
    first.is_done = true;
    WriteWork(first);
    counts_.Add(checker.Counts());
  }

  void ReadHeader(std::string_view text, const TableRow& header) {
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

  [[noreturn]] static void BreakHeader(std::size_t line, Reason reason) {
    throw std::runtime_error(Say(CheckText::BrokenFirstRow, {std::to_string(line), Say(reason)}));
  }

  void AddColumn(const std::vector<std::string>& names, const ColumnRequest& request) {
    const FoundColumn found = FindColumn(names, request.name, rules_.delimiter);
    if (!found.index) throw std::runtime_error(found.why);
    rules_.columns.push_back({names[*found.index], request.kind, *found.index});
  }

  void CheckRest() {
    const unsigned threads = Threads();
    BlockQueue queue(reader_, std::size_t{threads} * 2, [this](BlockWork& work) { WriteWork(work); });
    RunOnThreads(threads, [&] { Work(queue); });
    queue.Rethrow();
  }

  [[nodiscard]] unsigned Threads() const {
    if (reader_.IsAtEnd()) return 1;
    const unsigned processors = std::max(1U, std::thread::hardware_concurrency());
    return std::min(job_.threads != 0 ? job_.threads : processors, kMostThreads);
  }

  void Work(BlockQueue& queue) {
    try {
      TableChecker checker(rules_, [&queue](BlockWork& work) {
        if (!queue.WriteEarly(work)) work.lines.clear();
      });
      while (BlockWork* const work = queue.Take()) {
        checker.Check(*work, 0, work->block.first_line);
        queue.Finish(*work);
      }
      const std::lock_guard lock(counts_lock_);
      counts_.Add(checker.Counts());
    } catch (...) {
      queue.Stop(std::current_exception());
    }
  }

  // Called for one block at a time, in the order of the table.
  void WriteWork(BlockWork& work) {
    output_.WriteLimited(work.lines, work.findings);
    work.lines.clear();
    work.findings = 0;
    if (!work.is_done) return;
    split_->Add(work.block.Text(), work.rejected);
    work.rejected.clear();
    // A bar among lines on a terminal would spoil both.
    if (!output_.IsTerminal()) progress_.Show(static_cast<std::int64_t>(work.block.offset));
  }

  const TableJob& job_;
  const std::string& name_;
  TableOutput& output_;
  TableInput input_;
  BlockReader reader_;
  Progress progress_;
  std::string mark_;
  std::optional<TableText> text_;
  std::optional<FindingLines> lines_;
  TableRules rules_;
  std::optional<SplitFiles> split_;
  std::mutex counts_lock_;
  TableCounts counts_;
};

// All tables of a job.
class JobRun {
 public:
  explicit JobRun(const TableJob& job) : job_(job), output_(job.limit) {}

  Answer Run() {
    for (const std::string& file : job_.files) CheckFile(file);
    if (!columns_.empty()) output_.WriteLast(Summary(columns_, counts_, output_.Written(), job_.json));
    if (is_incomplete_) return Answer::WrongUsage;
    return counts_.findings == 0 ? Answer::Yes : Answer::No;
  }

 private:
  void CheckFile(const std::string& file) {
    try {
      TableRun run(job_, file, output_);
      if (!run.Run()) is_incomplete_ = true;
      counts_.Add(run.Counts());
      if (columns_.empty()) columns_ = run.Columns();
    } catch (const std::runtime_error& error) {
      Complain(file, error.what());
      is_incomplete_ = true;
    }
  }

  const TableJob& job_;
  TableOutput output_;
  bool is_incomplete_ = false;
  TableCounts counts_;
  std::vector<CheckedColumn> columns_;
};

}  // namespace

Answer CheckTables(const TableJob& job) {
  const bool splits = !job.rejects.empty() || !job.clean.empty();
  if (splits && job.files.size() > 1) {
    Complain({}, Say(CheckText::OneFileOnly));
    return Answer::WrongUsage;
  }
  if (splits && job.rejects == job.clean) {
    Complain({}, Say(CheckText::SameOutput));
    return Answer::WrongUsage;
  }
  return JobRun(job).Run();
}

}  // namespace tool

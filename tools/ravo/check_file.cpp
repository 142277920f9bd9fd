#include "check_file.h"

#include "table_run.h"
#include "text.h"

#include <stdexcept>

namespace tool {
namespace {

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
    } catch (const OutputError&) {
      throw;
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
    Complain({}, Text("--rejects and --clean take one table to check"));
    return Answer::WrongUsage;
  }
  if (TableSplit::AreSame(job.rejects, job.clean)) {
    Complain({}, Text("--rejects and --clean name the same file"));
    return Answer::WrongUsage;
  }
  try {
    return JobRun(job).Run();
  } catch (const OutputError& error) {
    Complain({}, error.what());
    return Answer::WrongUsage;
  }
}

}  // namespace tool

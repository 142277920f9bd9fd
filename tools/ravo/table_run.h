#pragma once

#include "check_file.h"
#include "progress.h"
#include "table_checker.h"
#include "table_input.h"
#include "table_output.h"
#include "table_split.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The check of one table.
class TableRun {
 public:
  /// Throws `std::runtime_error` if the table cannot be opened.
  TableRun(const TableJob& job, const std::string& name, TableOutput& output);

  /// Throws `std::runtime_error` if the table cannot be checked. Returns false, with a message on standard
  /// error, if some of it could not be.
  bool Run();

  [[nodiscard]] const TableCounts& Counts() const noexcept { return counts_; }
  [[nodiscard]] const std::vector<CheckedColumn>& Columns() const noexcept { return rules_.columns; }

 private:
  void Begin();
  [[nodiscard]] std::size_t DecideText(std::string_view sample);
  void DecideDelimiter(std::string_view sample);
  void TellDecided() const;
  void CheckFirstBlock();
  void ReadHeader(std::string_view text, const TableRow& header);
  void AddColumn(const std::vector<std::string>& names, const ColumnRequest& request);
  void CheckRest();
  [[nodiscard]] unsigned Threads() const;
  void WriteWork(BlockWork& work);

  const TableJob& job_;
  const std::string& name_;
  TableOutput& output_;
  TableInput input_;
  BlockReader reader_;
  Progress progress_;
  std::string mark_;   // the byte-order mark
  std::string doubt_;  // why the encoding is not certain
  std::optional<TableText> text_;
  std::optional<FindingLines> lines_;
  TableRules rules_;
  std::optional<TableSplit> split_;
  TableCounts counts_;
};

}  // namespace tool

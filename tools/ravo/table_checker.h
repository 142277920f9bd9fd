#pragma once

#include "table_findings.h"
#include "table_work.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tool {

/// What all workers of a table need to know.
struct TableRules {
  std::vector<CheckedColumn> columns;
  std::size_t fields = 0;  // of the first row
  char delimiter = ';';
  bool allow_empty = false;
  std::size_t limit = 0;  // of findings written
  const TableText* text = nullptr;
  const FindingLines* lines = nullptr;
};

/// Checks blocks of a table. One object for each worker.
class TableChecker {
 public:
  /// Writes what there is of the block, whose findings grow large.
  using WriteEarly = std::function<void()>;

  explicit TableChecker(const TableRules& rules);

  /// Checks the rows from the index `from` of the block's text on, which are from line `line` of the file on.
  void Check(BlockWork& work, std::size_t from, std::size_t line, const WriteEarly& write_early);

  [[nodiscard]] TableCounts Counts() const;

 private:
  struct ColumnCheck {
    std::size_t number = 0;
    std::size_t place = 0;
    Verdict (*check)(std::u16string_view text) = nullptr;
    ColumnCounts counts;
  };

  void CheckRow();
  void CheckBytes();
  void CheckField(ColumnCheck& column, const TableField& field);
  [[nodiscard]] std::u16string_view TextOf(std::string_view value, const TableField& field);
  [[nodiscard]] std::u16string_view WidenedInBlock(std::string_view value);
  [[nodiscard]] std::u16string_view Widened(std::string_view value);
  void Report(ColumnCheck& column, std::string_view value, const Verdict& verdict);
  void AddRowFinding(std::size_t line, Reason reason, const std::string& what);
  [[nodiscard]] bool IsWanted() const { return work_->findings < rules_.limit; }
  void Reject();

  const TableRules& rules_;
  std::vector<ColumnCheck> columns_;
  TableCounts counts_;
  BlockWork* work_ = nullptr;
  std::string_view text_;
  std::size_t next_wrong_ = 0;  // index of the next byte that is not of the encoding
  TableRow row_;
  std::size_t findings_before_ = 0;
  std::string unescaped_;
  char16_t short_[TableBlock::kPadding] = {};
  std::u16string long_;
};

}  // namespace tool

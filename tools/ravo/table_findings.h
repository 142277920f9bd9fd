#pragma once

#include "checks.h"
#include "reasons.h"
#include "table_text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// A column to check.
struct CheckedColumn {
  std::string name;  // UTF-8
  const CheckKind* kind = nullptr;
  std::size_t place = 0;  // index in a row
};

/// How many values of a column are valid, and how many are not for each reason.
struct ColumnCounts {
  std::size_t valid = 0;
  std::array<std::size_t, kReasons> reasons{};
};

/// What was counted in a table or in a part of it.
struct TableCounts {
  std::size_t rows = 0;
  std::size_t rejected = 0;  // rows with findings
  std::size_t findings = 0;
  std::array<std::size_t, kReasons> rows_by_reason{};  // findings about whole rows
  std::vector<ColumnCounts> columns;

  void Add(const TableCounts& other);
};

/// Writes findings, a line each: for people, fields separated by tabs; for scripts, JSON Lines.
class FindingLines {
 public:
  /// `file` is empty if people need not be told which one it is. All have to outlive the object.
  FindingLines(std::string_view file, std::string_view shown_file, const std::vector<CheckedColumn>& columns,
               const TableText& text, bool json);

  /// Appends the line of a value of a column that is not valid; `remark` may be empty.
  void AppendValue(std::string& lines, std::size_t line, std::size_t column, std::string_view value,
                   Reason reason, std::string_view remark) const;
  /// Appends the line of a row that has a fault; `what` is for people.
  void AppendRow(std::string& lines, std::size_t line, Reason reason, std::string_view what) const;

 private:
  void AppendValueText(std::string& lines, std::string_view value) const;

  const TableText& text_;
  bool json_;
  std::string before_line_;
  std::string after_line_;            // for people
  std::vector<std::string> columns_;  // what stands between the line and the value
  std::array<std::string, kReasons> reasons_;
};

/// Returns the summary of a check, for people or for scripts. `shown` is the number of findings that were
/// written.
[[nodiscard]] std::string Summary(const std::vector<CheckedColumn>& columns, const TableCounts& counts,
                                  std::size_t shown, bool json);

}  // namespace tool

#pragma once

#include "csv_reader.h"
#include "progress.h"

#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// A table in a file whose first row has the column names. All members throw `CsvError` or
/// `std::runtime_error` if the file cannot be read or is not such a table.
class CsvFile {
 public:
  /// `name` is UTF-8; a delimiter of 0 is detected. `doing` is the label of the progress bar.
  CsvFile(const std::string& name, const std::string& doing, char delimiter);

  /// Returns the index of a column by its name in UTF-8, as `FindColumn` finds it.
  [[nodiscard]] std::size_t Column(std::string_view name) const;
  [[nodiscard]] bool HasColumn(std::string_view name) const;

  /// Reads the next row; returns false at the end. Throws `CsvError` if its length differs from the first
  /// row's.
  [[nodiscard]] bool Next();

  /// Returns a field of the current row, its bytes unchanged.
  [[nodiscard]] std::string_view Field(std::size_t column) const { return fields_[column]; }
  /// Returns the 1-based line on which the current row begins.
  [[nodiscard]] std::size_t Line() const noexcept { return reader_.Line(); }
  /// Returns the number of rows read, without the first.
  [[nodiscard]] std::size_t Rows() const noexcept { return rows_; }

 private:
  std::size_t ReadSome(std::span<char> to);

  bool is_input_;
  std::ifstream file_;
  CsvReader reader_;
  Progress progress_;
  std::vector<std::string> columns_;
  std::vector<std::string_view> fields_;
  std::size_t rows_ = 0;
};

}  // namespace tool

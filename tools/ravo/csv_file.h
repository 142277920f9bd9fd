#pragma once

#include "csv_reader.h"
#include "progress.h"

#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// A table of fields in a file whose first row names its columns. Everything raises `CsvError` or
/// `std::runtime_error` for a file that cannot be read or is no such table.
class CsvFile {
 public:
  /// `name` is UTF-8, a delimiter of 0 is found out. `doing` is what a progress bar says of the work.
  CsvFile(const std::string& name, const std::string& doing, char delimiter);

  /// The place of a column in each row, by its name in UTF-8.
  [[nodiscard]] std::size_t Column(std::string_view name) const;
  [[nodiscard]] bool HasColumn(std::string_view name) const;

  /// Reads the next row; false at the end. Raises for a row of another length than the first.
  [[nodiscard]] bool Next();

  /// A field of the row that was read last, bytes as they stand.
  [[nodiscard]] std::string_view Field(std::size_t column) const { return fields_[column]; }
  /// The line, from 1, on which that row begins.
  [[nodiscard]] std::size_t Line() const noexcept { return reader_.Line(); }
  /// Rows read, without the first.
  [[nodiscard]] std::size_t Rows() const noexcept { return rows_; }

 private:
  std::size_t ReadSome(std::span<char> to);

  std::ifstream file_;
  CsvReader reader_;
  Progress progress_;
  std::vector<std::string> columns_;
  std::vector<std::string_view> fields_;
  std::size_t rows_ = 0;
};

}  // namespace tool

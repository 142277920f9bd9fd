#pragma once

#include "checks.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// A column to check, by its name in the first row of the file.
struct ColumnCheck {
  std::string name;
  const CheckKind* kind = nullptr;
  std::size_t valid = 0;
  std::size_t invalid = 0;
};

/// An invalid value.
struct BadValue {
  std::size_t line = 0;
  std::size_t column = 0;  // index into the checks
  std::string value;
  std::string remark;
};

struct FileCheck {
  std::size_t rows = 0;
  std::vector<ColumnCheck> columns;
  std::vector<BadValue> bad;
};

/// Checks the named columns of a file whose first row has the column names. `name` is UTF-8; a delimiter of 0
/// is detected; `allow_empty` skips empty values. Throws `CsvError` or `std::runtime_error` if the file
/// cannot be read, lacks a column or has a row of another length.
[[nodiscard]] FileCheck CheckFile(const std::string& name, std::vector<ColumnCheck> columns, char delimiter,
                                  bool allow_empty);

}  // namespace tool

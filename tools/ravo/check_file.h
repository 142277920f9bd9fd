#pragma once

#include "checks.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// A column to check, by the name in the file's first row.
struct ColumnCheck {
  std::string name;
  const CheckKind* kind = nullptr;
  std::size_t valid = 0;
  std::size_t invalid = 0;
};

/// A value that is not right.
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

/// Checks the named columns of a file whose first row names its columns; `name` is UTF-8, a delimiter of 0 is
/// found out. Empty values are passed over where `allow_empty` says so. Raises `CsvError` or
/// `std::runtime_error` for a file that cannot be read, lacks a column or has a row of another length.
[[nodiscard]] FileCheck CheckFile(const std::string& name, std::vector<ColumnCheck> columns, char delimiter,
                                  bool allow_empty);

}  // namespace tool

#pragma once

#include "checks.h"
#include "outcome.h"
#include <ravo/DIUnicode.h>

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace tool {

/// A column to check, as a person names it: by its name in the first row or by its 1-based number.
struct ColumnRequest {
  std::string name;
  const CheckKind* kind = nullptr;
};

/// A check of tables whose first row has the column names. Names are UTF-8.
struct TableJob {
  std::vector<std::string> files;  // "-" is standard input
  std::vector<ColumnRequest> columns;
  char delimiter = '\0';                                   // 0: detected
  const ravo::DIUnicode::EncodingRow* encoding = nullptr;  // null: detected
  bool allow_empty = false;                                // skip empty values
  bool json = false;
  std::size_t limit = std::numeric_limits<std::size_t>::max();  // of findings written
  std::string rejects;   // the file for rows with findings; may be empty
  std::string clean;     // the file for all other bytes; may be empty
  unsigned threads = 0;  // 0: one for each processor
};

/// Checks the tables, writes findings and summary to standard output as they come, and messages to standard
/// error.
///
/// Findings have the order of the rows, whatever the number of threads. `rejects` and `clean` together have
/// the bytes of the table. Returns `WrongUsage` if some of the work could not be done, else `No` if there are
/// findings.
[[nodiscard]] Answer CheckTables(const TableJob& job);

}  // namespace tool

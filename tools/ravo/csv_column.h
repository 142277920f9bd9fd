#pragma once

#include <ravo/DIUnicode.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// A column of a table whose first row has the column names.
struct CsvColumn {
  std::string name;                                        ///< in UTF-8, as `FindColumn` finds it
  char delimiter = '\0';                                   ///< detected if 0
  const ravo::DIUnicode::EncodingRow* encoding = nullptr;  ///< found out if null
};

/// Returns a table with the fields of one column changed and all other bytes as they are.
///
/// Rows and fields are those of `RowScanner`. `change` gets the 1-based line and the value of each field but
/// the first row's, in UTF-8; the field stays as it is without a new value. `missing` gets the line of each
/// row that has no such field. Throws `std::runtime_error`, whose message is for people, if there is no such
/// column, if several have its name, and for a table in an encoding that tables cannot have.
[[nodiscard]] std::string ChangeCsvColumn(
    std::string_view table, const CsvColumn& column,
    const std::function<std::optional<std::string>(std::size_t line, const std::string& value)>& change,
    const std::function<void(std::size_t line)>& missing);

}  // namespace tool

#pragma once

#include <cstddef>
#include <string>

namespace tool {

/// A forms data file (FDF): its bytes, and how many fields it fills.
struct FormFile {
  std::string bytes;
  std::size_t fields = 0;
};

/// Makes a forms data file of a table with the columns "field", "value" and, where it has one, "kind"; `name`
/// is UTF-8, a delimiter of 0 is found out. Raises `CsvError` or `std::runtime_error` for a file that cannot
/// be read or has a row that no form can take.
[[nodiscard]] FormFile MakeFormFile(const std::string& name, char delimiter);

}  // namespace tool

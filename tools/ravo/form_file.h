#pragma once

#include <cstddef>
#include <string>

namespace tool {

/// A forms data file (FDF): its bytes, and the number of fields that it fills.
struct FormFile {
  std::string bytes;
  std::size_t fields = 0;
};

/// Returns a forms data file made from a table with the columns "field", "value" and, optionally, "kind".
/// `name` is UTF-8; a delimiter of 0 is detected. Throws `CsvError` or `std::runtime_error` if the file
/// cannot be read or a row does not fit a form.
[[nodiscard]] FormFile MakeFormFile(const std::string& name, char delimiter);

}  // namespace tool

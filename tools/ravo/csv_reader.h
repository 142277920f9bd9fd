#pragma once

#include "table_blocks.h"
#include "table_rows.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// A file is not a table of fields; the message has the line.
class CsvError : public std::runtime_error {
 public:
  CsvError(std::size_t line, const std::string& what);
  [[nodiscard]] std::size_t Line() const noexcept { return line_; }

 private:
  std::size_t line_;
};

/// Reads the rows of a table one by one, split as `RowScanner` does. A leading byte-order mark of UTF-8 is
/// skipped. Bytes are returned unchanged, in any encoding.
class CsvReader {
 public:
  using Source = BlockReader::Source;

  /// A delimiter of 0 is detected. `block` is the number of bytes split at once, at least 1.
  CsvReader(Source source, char delimiter, std::size_t block = BlockReader::kBlock);

  /// Stores the fields of the next row, valid until the next call; returns false at the end. Throws
  /// `CsvError` for an unclosed quote and for text after a closing quote.
  [[nodiscard]] bool Next(std::vector<std::string_view>& fields);

  /// Returns the 1-based line on which the current row begins.
  [[nodiscard]] std::size_t Line() const noexcept { return row_.line; }

  /// Returns the delimiter; one that is detected is known after the first `Next`.
  [[nodiscard]] char Delimiter() const noexcept { return delimiter_; }

  /// Returns the number of bytes read from the source.
  [[nodiscard]] std::size_t BytesRead() const noexcept {
    return static_cast<std::size_t>(reader_.BytesRead());
  }

 private:
  void Begin();
  [[nodiscard]] bool NextRow();

  BlockReader reader_;
  char delimiter_;
  TableBlock block_;
  std::optional<RowScanner> scanner_;
  TableRow row_;
  std::deque<std::string> unescaped_;  // fields of this row whose doubled quotes were made single
};

}  // namespace tool

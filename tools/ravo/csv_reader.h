#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <span>
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

/// Reads rows of fields (RFC 4180, with any one-byte delimiter): lines end in LF or CR LF, a field in double
/// quotes may contain delimiters, line ends and doubled quotes. A leading byte-order mark of UTF-8 and empty
/// lines are skipped. Bytes are returned unchanged, in any encoding. Time and memory are linear in the size
/// of the file and of its longest row.
class CsvReader {
 public:
  /// A function that fills the span with the next bytes and returns their number; 0 at the end.
  using Source = std::function<std::size_t(std::span<char>)>;

  static constexpr std::size_t kFirstBuffer = std::size_t{1} << 20;

  /// With a delimiter of 0, the reader uses ";" or ",", whichever is more frequent in the first line. The
  /// buffer starts with `first_buffer` bytes, at least 4, and grows to the longest row.
  CsvReader(Source source, char delimiter, std::size_t first_buffer = kFirstBuffer);

  /// Stores the fields of the next row, valid until the next call; returns false at the end. Throws
  /// `CsvError` for an unclosed quote and for text after a closing quote.
  [[nodiscard]] bool Next(std::vector<std::string_view>& fields);

  /// Returns the 1-based line on which the current row begins.
  [[nodiscard]] std::size_t Line() const noexcept { return line_; }

  /// Returns the number of bytes read from the source.
  [[nodiscard]] std::size_t BytesRead() const noexcept { return bytes_read_; }

 private:
  enum class Scan { Row, NeedsMore };

  [[nodiscard]] bool Fill();
  void Begin();
  [[nodiscard]] bool SkipEmptyLines();
  [[nodiscard]] Scan ScanRow(std::vector<std::string_view>& fields);
  [[nodiscard]] Scan SplitLine(std::size_t line_end, std::vector<std::string_view>& fields);
  [[nodiscard]] Scan ScanField(std::size_t& at, std::vector<std::string_view>& fields, std::size_t& line_end);
  [[nodiscard]] Scan EndRow(std::size_t line_end);
  [[nodiscard]] std::size_t TextEnd(std::size_t from, std::size_t line_end) const;
  [[nodiscard]] Scan ScanQuoted(std::size_t& at, std::vector<std::string_view>& fields);
  [[nodiscard]] std::string_view Unescaped(std::string_view quoted);

  Source source_;
  char delimiter_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  // the first byte that belongs to no row yet
  std::size_t end_ = 0;    // past the last byte read
  bool at_end_ = false;    // the source is exhausted
  bool begun_ = false;
  std::size_t line_ = 0;       // of the row read last
  std::size_t next_line_ = 1;  // of the byte at begin_
  std::size_t scanned_lines_ = 0;
  std::size_t bytes_read_ = 0;
  std::deque<std::string> unescaped_;  // fields of this row whose doubled quotes were halved
};

}  // namespace tool

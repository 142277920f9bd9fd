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

/// A file that is no table of fields; the message names the line.
class CsvError : public std::runtime_error {
 public:
  CsvError(std::size_t line, const std::string& what);
  [[nodiscard]] std::size_t Line() const noexcept { return line_; }

 private:
  std::size_t line_;
};

/// Reads rows of fields (RFC 4180, with any one-byte delimiter): lines end in LF or CR LF, a field in double
/// quotes may hold delimiters, line ends and doubled quotes. A byte-order mark of UTF-8 in front is skipped,
/// and so are empty lines. Bytes are handed on as they stand, whatever their encoding. Time and memory are
/// linear in the file and in its longest row.
class CsvReader {
 public:
  /// Fills the span with the next bytes and answers how many; 0 at the end.
  using Source = std::function<std::size_t(std::span<char>)>;

  static constexpr std::size_t kFirstBuffer = std::size_t{1} << 20;

  /// A delimiter of 0 takes ";" or ",", whichever the first line has more of. The buffer begins with
  /// `first_buffer` bytes, at least 4, and grows with the longest row.
  CsvReader(Source source, char delimiter, std::size_t first_buffer = kFirstBuffer);

  /// The next row's fields, which live until the next call; false at the end. Raises `CsvError` for a quote
  /// that is never closed and for text behind a closing quote.
  [[nodiscard]] bool Next(std::vector<std::string_view>& fields);

  /// The line, from 1, on which the row that was read last begins.
  [[nodiscard]] std::size_t Line() const noexcept { return line_; }

  /// Bytes taken from the source so far.
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
  std::size_t end_ = 0;    // behind the last byte read
  bool at_end_ = false;    // the source has no more
  bool begun_ = false;
  std::size_t line_ = 0;       // of the row read last
  std::size_t next_line_ = 1;  // of the byte at begin_
  std::size_t scanned_lines_ = 0;
  std::size_t bytes_read_ = 0;
  std::deque<std::string> unescaped_;  // fields of this row whose doubled quotes were halved
};

}  // namespace tool

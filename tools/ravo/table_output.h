#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// Writes a message about a file, whose name may be empty, to standard error.
void Complain(const std::string& file, const std::string& what);

/// Standard output cannot be written.
class OutputError : public std::runtime_error {
 public:
  OutputError();
};

/// Lines of fields separated by tabs on standard output: as they are in a file or a pipe, in columns on a
/// terminal.
class TableOutput {
 public:
  /// At most `limit` lines are written by `WriteLimited`.
  explicit TableOutput(std::size_t limit);

  /// Writes whole lines, of which there are `count`, up to the limit. Throws `OutputError` if they cannot
  /// be written.
  void WriteLimited(std::string_view lines, std::size_t count);
  /// Writes whole lines and all that waits for its columns to be as wide as they get.
  void WriteLast(std::string_view lines);

  /// Returns how many lines `WriteLimited` wrote.
  [[nodiscard]] std::size_t Written() const noexcept { return written_; }
  /// Whether a person reads the lines on a terminal.
  [[nodiscard]] bool IsTerminal() const noexcept { return is_terminal_; }

 private:
  void Write(std::string_view lines);
  void ShowWaiting();

  std::size_t limit_;
  std::size_t written_ = 0;
  bool is_terminal_;
  std::vector<std::string> waiting_;
  std::vector<std::size_t> widths_;
};

/// Returns lines of fields separated by tabs in columns with two blanks between them. `widths` has the least
/// width of each column in characters and gets the new one.
[[nodiscard]] std::string Aligned(const std::vector<std::string>& lines, std::vector<std::size_t>& widths);

}  // namespace tool

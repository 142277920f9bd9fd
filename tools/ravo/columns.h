#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// Returns the number of columns that a text takes on a terminal: one per character, none for a combining
/// mark.
[[nodiscard]] std::size_t Width(std::string_view utf8);

/// Returns the text with spaces up to `width` columns.
[[nodiscard]] std::string Padded(std::string_view utf8, std::size_t width);

/// Rows of cells for people and scripts: aligned in columns on a terminal, with tabs between the cells
/// elsewhere.
class Columns {
 public:
  void Add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

  /// The rows, each with a line end.
  [[nodiscard]] std::string Text() const;
  [[nodiscard]] std::string Text(bool aligned) const;

 private:
  [[nodiscard]] std::vector<std::size_t> Widths() const;

  std::vector<std::vector<std::string>> rows_;
};

}  // namespace tool

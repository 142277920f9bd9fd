#include "table_shape.h"

#include "table_rows.h"

#include <algorithm>
#include <tuple>

namespace tool {
namespace {

struct Split {
  std::size_t fields = 0;   // of the first row
  std::size_t regular = 0;  // rows with as many
  std::size_t rows = 0;

  // Whether this split is more likely: a larger share of regular rows, then more fields.
  [[nodiscard]] bool IsBetterThan(const Split& other) const {
    if (fields < 2 || other.fields < 2) return fields >= 2;
    return std::tuple(regular * other.rows, fields) > std::tuple(other.regular * rows, other.fields);
  }
};

// The sample may end inside its last row, which then tells nothing unless it is the only one.
Split SplitAt(std::string_view sample, char delimiter, bool is_whole) {
  Split split;
  RowScanner scanner(sample, delimiter);
  for (TableRow row; scanner.Next(row);) {
    if (split.rows > 0 && row.end == sample.size() && !is_whole) break;
    if (split.rows == 0) split.fields = row.fields.size();
    split.regular += row.fields.size() == split.fields ? 1 : 0;
    ++split.rows;
  }
  return split;
}

}  // namespace

char DetectDelimiter(std::string_view sample, bool is_whole) {
  char best = kDelimiters.front();
  Split best_split = SplitAt(sample, best, is_whole);
  for (const char delimiter : kDelimiters.substr(1)) {
    const Split split = SplitAt(sample, delimiter, is_whole);
    if (!split.IsBetterThan(best_split)) continue;
    best = delimiter;
    best_split = split;
  }
  return best;
}

}  // namespace tool

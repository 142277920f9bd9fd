#pragma once

#include <ravo/order/czech_order.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

using ravo::order::CzechOrder;

/// The order and options of a sort.
struct LineOrder {
  CzechOrder czech;
  /// Compare the numbers with which the keys begin.
  bool numeric = false;
  /// The numbers, from 1, of the fields to compare, in this order; empty for the whole line.
  std::vector<std::size_t> fields;
  /// Between fields; empty: runs of blanks and tabs.
  std::string delimiter;
  bool reverse = false;
  /// Only the first of equal lines.
  bool unique = false;
};

using Lines = std::vector<std::string_view>;

/// Returns a field of a line; empty if the line has fewer. `field` counts from 1.
[[nodiscard]] std::string_view FieldOf(std::string_view line, std::size_t field, std::string_view delimiter);

/// Returns the text of a line that is compared: without the carriage return at its end.
[[nodiscard]] std::string_view TextOfLine(std::string_view line);

/// Returns the lines in their order, sorted by all processors. They must be UTF-8.
///
/// Lines with equal keys stay in the order in which they came. Whole lines are equal only if their bytes are,
/// unless case does not count.
[[nodiscard]] Lines Sorted(const Lines& lines, const LineOrder& order);

/// Returns the lines in the order in which the suite puts them.
///
/// `before` returns a negative number if its first text comes first. It need not be transitive: the natural
/// order of the suite is not.
using SuiteOrder = std::ptrdiff_t (*)(std::u16string_view, std::u16string_view) noexcept;
[[nodiscard]] Lines SortedAsInTheSuite(const Lines& lines, SuiteOrder before, bool reverse, bool unique);

/// Returns the number of the first line, from 1, that the suite would put before the one above it; 0 if the
/// order is the suite's.
[[nodiscard]] std::size_t FirstUnlikeTheSuite(const Lines& lines, SuiteOrder before, bool reverse);

}  // namespace tool

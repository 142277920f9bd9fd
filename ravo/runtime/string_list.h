#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ravo {

/// An ordered list of lines that also reads lines of the form name=value by their name.
class RAVO_API StringList {
 public:
  /// A new last line.
  void Add(std::u16string line) { lines_.push_back(std::move(line)); }
  /// Removes all lines.
  void Clear() noexcept { lines_.clear(); }
  /// How many lines there are.
  [[nodiscard]] std::size_t Count() const noexcept { return lines_.size(); }
  /// Whether there is no line.
  [[nodiscard]] bool Empty() const noexcept { return lines_.empty(); }

  /// The line at a 0-based index; `RangeError` beyond the end.
  [[nodiscard]] const std::u16string& At(std::size_t index) const;

  /// The first line, for loops.
  [[nodiscard]] auto begin() const noexcept { return lines_.begin(); }
  /// Behind the last line.
  [[nodiscard]] auto end() const noexcept { return lines_.end(); }

  /// Every line followed by carriage return and line feed, the last one too.
  [[nodiscard]] std::u16string Text() const;

  /// Replaces the lines by those of a text: a line ends at carriage return, line feed or the two in this
  /// order; a break at the very end starts no further line.
  void SetText(std::u16string_view text);

  /// What stands before the first "=" of a line; empty for a line without one.
  [[nodiscard]] std::u16string_view NameAt(std::size_t index) const;

  /// What stands behind the first "=" of a line; empty for a line without one.
  [[nodiscard]] std::u16string_view ValueAt(std::size_t index) const;

  /// The index of the first line of that name, A to Z in either case; no value where there is none.
  [[nodiscard]] std::optional<std::size_t> IndexOfName(std::u16string_view name) const;

  /// The value of the first line of that name; empty where there is none.
  [[nodiscard]] std::u16string_view Value(std::u16string_view name) const;

  /// Sets the value of the first line of that name, or adds a line; an empty value deletes the line.
  void SetValue(std::u16string_view name, std::u16string_view value);

  friend bool operator==(const StringList&, const StringList&) = default;

 private:
  std::vector<std::u16string> lines_;
};

}  // namespace ravo

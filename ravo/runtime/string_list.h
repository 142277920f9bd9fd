#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ravo {

/// An ordered list of lines, with access by name to lines of the form name=value. Indices are 0-based.
class RAVO_API StringList {
 public:
  /// Appends a line.
  void Add(std::u16string line) { lines_.push_back(std::move(line)); }
  /// Removes all lines.
  void Clear() noexcept { lines_.clear(); }
  /// Returns the number of lines.
  [[nodiscard]] std::size_t Count() const noexcept { return lines_.size(); }
  /// Returns whether the list is empty.
  [[nodiscard]] bool Empty() const noexcept { return lines_.empty(); }

  /// Returns the line at `index`. Throws `RangeError` if `index` is out of range.
  [[nodiscard]] const std::u16string& At(std::size_t index) const;

  /// Returns an iterator to the first line.
  [[nodiscard]] auto begin() const noexcept { return lines_.begin(); }
  /// Returns an iterator past the last line.
  [[nodiscard]] auto end() const noexcept { return lines_.end(); }

  /// Returns all lines, each followed by carriage return and line feed, the last one too.
  [[nodiscard]] std::u16string Text() const;

  /// Replaces the lines with those of `text`. A line ends at a carriage return, a line feed, or both in this
  /// order; a break at the very end starts no further line.
  void SetText(std::u16string_view text);

  /// Returns the text before the first "=" of a line; empty for a line without one. Throws `RangeError` if
  /// `index` is out of range.
  [[nodiscard]] std::u16string_view NameAt(std::size_t index) const;

  /// Returns the text after the first "=" of a line; empty for a line without one. Throws `RangeError` if
  /// `index` is out of range.
  [[nodiscard]] std::u16string_view ValueAt(std::size_t index) const;

  /// Returns the index of the first line named `name`, ignoring the case of ASCII letters, or no value.
  [[nodiscard]] std::optional<std::size_t> IndexOfName(std::u16string_view name) const;

  /// Returns the value of the first line named `name`, or an empty text.
  [[nodiscard]] std::u16string_view Value(std::u16string_view name) const;

  /// Sets the value of the first line named `name`, or appends a line. An empty value deletes the line.
  void SetValue(std::u16string_view name, std::u16string_view value);

  friend bool operator==(const StringList&, const StringList&) = default;

 private:
  std::vector<std::u16string> lines_;
};

}  // namespace ravo

#pragma once

#include "line_sort.h"
#include <ravo/codec/encoding.h>

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// The lines of several files, in one encoding.
class SortInput {
 public:
  /// Throws `std::runtime_error` if there is no such encoding.
  explicit SortInput(const std::string& encoding);

  /// Reads a file, or standard input for "-". Throws `std::runtime_error`, with the file's name, if it cannot
  /// be read or is in another encoding.
  void Add(const std::string& name);

  /// Takes the first line of each file, to stay before the sorted ones, and returns it; nothing without
  /// lines. Throws `std::runtime_error`, with the file's name, if two files begin with different lines.
  [[nodiscard]] std::optional<std::string_view> TakeHeader();

  /// Returns all lines that are left, without the line feed; a carriage return before it stays. They are
  /// views of this object.
  [[nodiscard]] Lines AllLines() const;

  /// Returns `text`, some of these lines in UTF-8, in their encoding.
  [[nodiscard]] std::string InEncoding(std::string_view text) const;
  /// Returns the byte-order mark of the first file, in UTF-8; empty if it has none.
  [[nodiscard]] std::string_view Mark() const { return mark_; }

 private:
  [[nodiscard]] bool IsUtf8() const { return encoding_.name == "UTF_8"; }
  [[nodiscard]] std::string InUtf8(std::string bytes, const std::string& name) const;

  const ravo::codec::Encoding& encoding_;
  // A file, and where the lines begin that are left.
  struct Source {
    std::string name;
    std::string text;
    std::size_t begin = 0;
  };
  std::deque<Source> sources_;
  std::string_view mark_;
};

}  // namespace tool

#pragma once

#include "table_marks.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Rows and fields of a table in memory (RFC 4180, with any one-byte delimiter).
///
/// A line ends in LF, CR LF or CR. A field in double quotes may contain delimiters, line ends and doubled
/// quotes. A quote opens a field only at the field's start, and only if it is closed: its closing quote is at
/// most `kLongestQuoted` bytes away and a delimiter, a line end or the end of the file follows it. Any other
/// quote is a character like any other, so one stray quote costs one row, not the rest of the file.
namespace tool {

/// The most bytes between an opening quote and its closing one.
inline constexpr std::size_t kLongestQuoted = std::size_t{4} << 20;

/// A quote at the start of a field, and what becomes of it.
struct OpeningQuote {
  enum class Fate : std::uint8_t {
    Closed,
    Open,       // never closed
    TextAfter,  // closed on the same line, with text after the closing quote
    Undecided,  // more bytes are needed
  };
  Fate fate = Fate::Undecided;
  std::size_t close = 0;  // index of the closing quote, if Closed
  bool doubled = false;   // there are doubled quotes inside
};

/// Returns what becomes of the quote at `text[opener]`. `is_whole` tells that nothing follows `text`.
[[nodiscard]] OpeningQuote ReadQuote(std::string_view text, std::size_t opener, char delimiter,
                                     bool is_whole);

/// Returns the number of line ends in `text`.
[[nodiscard]] std::size_t CountLineEnds(std::string_view text) noexcept;

/// A field without its quotes; `doubled` tells that it has doubled quotes inside.
struct TableField {
  std::string_view bytes;
  bool doubled = false;
};

/// Returns the value of a field; `space` keeps it if its doubled quotes have to become single ones.
[[nodiscard]] std::string_view Unescaped(std::string_view quoted, std::string& space);
[[nodiscard]] inline std::string_view ValueOf(const TableField& field, std::string& space) {
  return field.doubled ? Unescaped(field.bytes, space) : field.bytes;
}

/// The fields of a row. Those of a row without quotes are known by their ends alone: most are never looked
/// at.
class TableFields {
 public:
  /// Begins a row of fields that are added one by one.
  void Clear() noexcept {
    ends_ = nullptr;
    size_ = 0;
  }
  void Add(const TableField& field) { *Space(1) = field; }
  /// Adds fields without quotes, the first of which begins at `begin`; returns where the next one begins.
  std::size_t Add(const char* text, std::size_t begin, std::span<const std::size_t> ends);
  /// Sets the fields of a row that begins at `begin`, by the indices of their ends in the text.
  void Set(const char* text, std::size_t begin, std::span<const std::size_t> ends) noexcept {
    text_ = text;
    begin_ = begin;
    ends_ = ends.data();
    size_ = ends.size();
  }

  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  [[nodiscard]] TableField operator[](std::size_t index) const {
    if (ends_ == nullptr) return added_[index];
    const std::size_t begin = index == 0 ? begin_ : ends_[index - 1] + 1;
    return {{text_ + begin, ends_[index] - begin}, false};
  }

 private:
  [[nodiscard]] TableField* Space(std::size_t count);

  const char* text_ = nullptr;
  std::size_t begin_ = 0;
  const std::size_t* ends_ = nullptr;
  std::size_t size_ = 0;
  std::vector<TableField> added_;
};

/// A row, valid until the next one is read.
struct TableRow {
  TableFields fields;
  std::size_t begin = 0;  // index of the first byte in the text
  std::size_t end = 0;    // past its line end
  std::size_t line = 0;   // 1-based line of the file on which it begins
  /// Open or TextAfter for a row with a stray quote, else Closed.
  OpeningQuote::Fate quote = OpeningQuote::Fate::Closed;
  std::size_t quote_line = 0;
};

/// Splits a text of whole rows. Empty lines are skipped.
class RowScanner {
 public:
  /// `first_line` is the 1-based line of the file on which `text` begins.
  RowScanner(std::string_view text, char delimiter, std::size_t first_line = 1)
      : text_(text), delimiter_(delimiter), marks_(text, delimiter), line_(first_line) {}

  /// Stores the next row; returns false at the end.
  [[nodiscard]] bool Next(TableRow& row);

 private:
  [[nodiscard]] bool SkipEmptyLines();
  [[nodiscard]] std::size_t ReadFields(TableRow& row);
  [[nodiscard]] std::size_t ReadField(TableRow& row);
  [[nodiscard]] bool IsAt(std::size_t at, char byte) const { return at < text_.size() && text_[at] == byte; }
  [[nodiscard]] std::size_t ReadWithQuote(TableRow& row);
  [[nodiscard]] bool ReadQuoted(TableRow& row);
  [[nodiscard]] std::size_t PastLineEnd(std::size_t at) const;

  std::string_view text_;
  char delimiter_;
  TableMarks marks_;
  std::size_t at_ = 0;
  std::size_t line_;
};

}  // namespace tool

#pragma once

#include "support.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

/// Columns of the caller: reading their rows, whatever the layout.
///
/// `ReadColumn` looks at the parts of a column and gives a reader of its rows to a function. A job has a
/// `Result`, computes it from the bytes of a row (`Of`) and writes it (`Put`, `PutNull`, `EndBlock`); for
/// dictionaries, `Kept` is a result that lasts. `RunColumn` joins the two, block by block. Memory of the
/// caller may be unaligned, and is untrusted unless it says otherwise.
namespace ravo::c {

/// The rows between two reports of progress. A multiple of eight, so that a block begins with a whole byte of
/// a bitmap.
inline constexpr std::size_t kBlockRows = 4096;

/// What the rows of a column are: texts, or numbers of a width in bytes.
using ValuesOfRows = std::int32_t;
inline constexpr ValuesOfRows kTexts = 0;

template <class Value>
[[nodiscard]] inline Value LoadAt(const void* values, std::size_t index) noexcept {
  Value value;
  std::memcpy(&value, static_cast<const char*>(values) + index * sizeof value, sizeof value);
  return value;
}

/// The bitmap of a column; without one, no row is null.
struct ValidRows {
  const std::uint8_t* bits = nullptr;
  std::size_t offset = 0;

  [[nodiscard]] bool Has(std::size_t row) const noexcept {
    if (bits == nullptr) return true;
    const std::size_t bit = offset + row;
    return (bits[bit / 8] >> bit % 8 & 1) != 0;
  }
};

/// Texts by offsets of 32 or 64 bits.
template <class Offset>
class OffsetTexts {
 public:
  OffsetTexts(const ravo_column& column, bool trusted) noexcept
      : offsets_(static_cast<const char*>(column.values)),
        data_(column.data),
        first_(column.offset),
        size_(SizeOf(column)),
        trusted_(trusted) {}

  /// False if the row's text is not in the data.
  [[nodiscard]] bool Get(std::size_t row, std::string_view& text) const noexcept {
    const auto begin = static_cast<std::uint64_t>(LoadAt<Offset>(offsets_, first_ + row));
    const auto end = static_cast<std::uint64_t>(LoadAt<Offset>(offsets_, first_ + row + 1));
    // A negative offset is a large one here.
    if (!trusted_ && (begin > end || end > size_)) return false;
    text = {data_ + begin, static_cast<std::size_t>(end - begin)};
    return true;
  }

 private:
  static std::uint64_t SizeOf(const ravo_column& column) noexcept {
    if (column.data == nullptr) return 0;
    if (column.data_size != RAVO_SIZE_UNKNOWN) return column.data_size;
    const auto last = LoadAt<Offset>(column.values, column.offset + column.length);
    if (last < 0) return 0;
    // No memory is longer.
    return std::min<std::uint64_t>(static_cast<std::uint64_t>(last), PTRDIFF_MAX);
  }

  const char* offsets_;
  const char* data_;
  std::size_t first_;
  std::uint64_t size_;
  bool trusted_;
};

/// Views: 4 bytes of length; then either the text, up to 12 bytes, or 4 bytes of it, the number of a buffer
/// and a place in it.
class ViewTexts {
 public:
  static constexpr std::size_t kViewSize = 16;
  static constexpr std::int32_t kLongestInside = 12;

  ViewTexts(const ravo_column& column, bool trusted) noexcept : column_(column), trusted_(trusted) {}

  [[nodiscard]] bool Get(std::size_t row, std::string_view& text) const noexcept {
    const char* const view = static_cast<const char*>(column_.values) + (column_.offset + row) * kViewSize;
    const auto length = LoadAt<std::int32_t>(view, 0);
    if (length >= 0 && length <= kLongestInside) {
      text = {view + 4, static_cast<std::size_t>(length)};
      return true;
    }
    const auto buffer = LoadAt<std::int32_t>(view, 2);
    const auto place = LoadAt<std::int32_t>(view, 3);
    if (!trusted_ && !IsInside(buffer, place, length)) return false;
    text = {static_cast<const char*>(column_.buffers[buffer]) + place, static_cast<std::size_t>(length)};
    return true;
  }

 private:
  [[nodiscard]] bool IsInside(std::int32_t buffer, std::int32_t place, std::int32_t length) const noexcept {
    if (length < 0 || place < 0 || buffer < 0) return false;
    const auto number = static_cast<std::size_t>(buffer);
    if (number >= column_.buffer_count || column_.buffers[number] == nullptr) return false;
    return std::int64_t{place} + length <= LoadAt<std::int64_t>(column_.buffer_sizes, number);
  }

  const ravo_column& column_;
  bool trusted_;
};

/// Values of one width, filled with NULs.
class FixedTexts {
 public:
  FixedTexts(const ravo_column& column, bool /*trusted*/) noexcept
      : width_(static_cast<std::size_t>(column.width)),
        values_(static_cast<const char*>(column.values) + column.offset * width_) {}

  [[nodiscard]] bool Get(std::size_t row, std::string_view& text) const noexcept {
    std::size_t size = width_;
    const char* const value = values_ + row * width_;
    while (size > 0 && value[size - 1] == '\0') --size;
    text = {value, size};
    return true;
  }

 private:
  std::size_t width_;
  const char* values_;
};

/// Numbers of one width, as their bytes.
class NumberValues {
 public:
  NumberValues(const ravo_column& column, bool /*trusted*/) noexcept
      : width_(static_cast<std::size_t>(column.width)),
        values_(static_cast<const char*>(column.values) + column.offset * width_) {}

  [[nodiscard]] bool Get(std::size_t row, std::string_view& bytes) const noexcept {
    bytes = {values_ + row * width_, width_};
    return true;
  }

 private:
  std::size_t width_;
  const char* values_;
};

enum class Row : std::uint8_t {
  Done,
  Null,
  Broken,  ///< the value is not in the data
  Misfit   ///< the result does not fit its column
};

/// Does a job for a text, without a copy of its result.
template <class Job>
[[nodiscard]] Row DoText(Job& job, std::size_t row, std::string_view text) {
  return job.Put(row, job.Of(text)) ? Row::Done : Row::Misfit;
}

/// Rows that have their own texts.
template <class Texts, class Job>
class PlainRows {
 public:
  PlainRows(const ravo_column& column, bool trusted) noexcept
      : texts_(column, trusted), valid_{column.validity, column.offset} {}

  [[nodiscard]] Row Get(std::size_t row, std::string_view& text) const noexcept {
    if (!valid_.Has(row)) return Row::Null;
    return texts_.Get(row, text) ? Row::Done : Row::Broken;
  }

  [[nodiscard]] Row Do(std::size_t row, Job& job) const {
    std::string_view text;
    const Row found = Get(row, text);
    return found == Row::Done ? DoText(job, row, text) : found;
  }

 private:
  Texts texts_;
  ValidRows valid_;
};

/// Returns the index of a row, or a number that no dictionary reaches.
[[nodiscard]] std::uint64_t IndexAt(const ravo_column& column, std::size_t row) noexcept;

/// Rows that have the texts of a dictionary. The job is done once for each entry that a row has.
template <class Texts, class Job>
class DictionaryRows {
 public:
  DictionaryRows(const ravo_column& column, bool trusted)
      : column_(column),
        entries_(*column.dictionary, trusted),
        valid_{column.validity, column.offset},
        trusted_(trusted),
        done_(Room(column.dictionary->length)) {}

  [[nodiscard]] Row Do(std::size_t row, Job& job) {
    if (!valid_.Has(row)) return Row::Null;
    const std::uint64_t index = IndexAt(column_, row);
    if (!trusted_ && index >= done_.size()) return Row::Broken;
    const Entry& entry = DoneEntry(static_cast<std::size_t>(index), job);
    if (entry->row != Row::Done) return entry->row;
    return job.Put(row, entry->result) ? Row::Done : Row::Misfit;
  }

 private:
  struct Done {
    Row row = Row::Null;
    typename Job::Kept result{};
  };
  using Entry = std::optional<Done>;

  [[nodiscard]] const Entry& DoneEntry(std::size_t index, Job& job) {
    Entry& entry = done_[index];
    if (entry) return entry;
    entry.emplace();
    std::string_view text;
    entry->row = entries_.Get(index, text);
    if (entry->row == Row::Done) entry->result = typename Job::Kept(job.Of(text));
    return entry;
  }

  // A length past all memory is a lack of memory, not a fault.
  static std::size_t Room(std::size_t length) {
    if (length > std::vector<Entry>().max_size()) throw std::bad_alloc();
    return length;
  }

  const ravo_column& column_;
  PlainRows<Texts, Job> entries_;
  ValidRows valid_;
  bool trusted_;
  std::vector<Entry> done_;
};

/// What the caller asks of a long call.
struct Run {
  std::uint32_t flags = 0;
  ravo_progress progress = nullptr;
  void* context = nullptr;
};

/// Returns RAVO_OK, or why a column cannot be read at all.
[[nodiscard]] ravo_status CheckColumn(const ravo_column* column, ValuesOfRows values, std::uint32_t flags,
                                      ravo_error* error) noexcept;

/// Reports the progress; returns RAVO_OK or RAVO_STOPPED.
[[nodiscard]] ravo_status Report(const Run& run, std::size_t done, std::size_t total, ravo_error* error);

/// The failure of a row that is neither done nor null.
[[nodiscard]] ravo_status FailRow(Row found, std::size_t row, ravo_error* error) noexcept;

/// Does a job for the rows from `first` to `end`.
template <class Rows, class Job>
[[nodiscard]] ravo_status RunBlock(Rows& rows, std::size_t first, std::size_t end, Job& job,
                                   ravo_error* error) {
  for (std::size_t row = first; row < end; ++row) {
    Row found = rows.Do(row, job);
    if (found == Row::Null) found = job.PutNull(row) ? Row::Done : Row::Misfit;
    if (found != Row::Done) return FailRow(found, row, error);
  }
  job.EndBlock(first, end);
  return RAVO_OK;
}

template <class Rows, class Job>
[[nodiscard]] ravo_status RunRows(Rows rows, std::size_t length, const Run& run, Job& job,
                                  ravo_error* error) {
  std::size_t row = 0;
  do {
    const std::size_t end = row + std::min(length - row, kBlockRows);
    ravo_status status = RunBlock(rows, row, end, job, error);
    if (status == RAVO_OK) status = Report(run, end, length, error);
    if (status != RAVO_OK) return status;
    row = end;
  } while (row < length);
  return RAVO_OK;
}

template <template <class, class> class Rows, class Job>
[[nodiscard]] ravo_status RunTexts(const ravo_column& column, ravo_layout texts, const Run& run, Job& job,
                                   ravo_error* error) {
  const bool trusted = (run.flags & RAVO_TRUSTED) != 0;
  const auto with = [&]<class Texts>(std::in_place_type_t<Texts>) {
    return RunRows(Rows<Texts, Job>(column, trusted), column.length, run, job, error);
  };
  switch (texts) {
    case RAVO_LAYOUT_OFFSETS_32:
      return with(std::in_place_type<OffsetTexts<std::int32_t>>);
    case RAVO_LAYOUT_OFFSETS_64:
      return with(std::in_place_type<OffsetTexts<std::int64_t>>);
    case RAVO_LAYOUT_VIEWS:
      return with(std::in_place_type<ViewTexts>);
    default:
      return with(std::in_place_type<FixedTexts>);
  }
}

/// Does a job for every row of a column. Precondition: `CheckColumn` accepted it.
template <ValuesOfRows values = kTexts, class Job>
[[nodiscard]] ravo_status RunColumn(const ravo_column& column, const Run& run, Job& job, ravo_error* error) {
  const auto with = [&]<class Rows>(std::in_place_type_t<Rows>) {
    return RunRows(Rows(column, (run.flags & RAVO_TRUSTED) != 0), column.length, run, job, error);
  };
  const bool is_plain = column.dictionary == nullptr;
  if constexpr (values != kTexts) {
    if (is_plain) return with(std::in_place_type<PlainRows<NumberValues, Job>>);
    return with(std::in_place_type<DictionaryRows<NumberValues, Job>>);
  } else {
    if (is_plain) return RunTexts<PlainRows>(column, column.layout, run, job, error);
    return RunTexts<DictionaryRows>(column, column.dictionary->layout, run, job, error);
  }
}

}  // namespace ravo::c

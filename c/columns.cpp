#include "columns.h"

namespace ravo::c {
namespace {

bool IsDictionary(const ravo_column& column) noexcept {
  return column.layout == RAVO_LAYOUT_DICTIONARY || column.layout == RAVO_LAYOUT_DICTIONARY_UNSIGNED;
}

bool IsIndexWidth(std::int32_t width) noexcept {
  return width == 1 || width == 2 || width == 4 || width == 8;
}

bool Has(const ravo_column& column, ValuesOfRows values) noexcept {
  if (values != kTexts) return column.layout == RAVO_LAYOUT_NUMBERS && column.width == values;
  return column.layout >= RAVO_LAYOUT_OFFSETS_32 && column.layout <= RAVO_LAYOUT_FIXED;
}

// What a column lacks for its layout; empty if nothing.
std::string_view FaultOfShape(const ravo_column& column) noexcept {
  if (column.layout == RAVO_LAYOUT_FIXED && column.width <= 0) return "the width is not above 0";
  if (IsDictionary(column) && !IsIndexWidth(column.width)) return "the width of indices is not 1, 2, 4 or 8";
  if (column.length > 0 && column.values == nullptr) return "the values of the column are null";
  if (column.data == nullptr && column.data_size != 0 && column.data_size != RAVO_SIZE_UNKNOWN)
    return "the data are null, but their size is not 0";
  if (column.buffer_count > 0 && (column.buffers == nullptr || column.buffer_sizes == nullptr))
    return "the buffers or their sizes are null";
  return {};
}

// The bytes of `values` that a row has.
std::size_t RowSize(const ravo_column& column) noexcept {
  switch (column.layout) {
    case RAVO_LAYOUT_OFFSETS_32:
      return sizeof(std::int32_t);
    case RAVO_LAYOUT_OFFSETS_64:
      return sizeof(std::int64_t);
    case RAVO_LAYOUT_VIEWS:
      return ViewTexts::kViewSize;
    default:
      return static_cast<std::size_t>(column.width);
  }
}

// Rows that no address could reach; offsets are one more.
bool HasTooManyRows(const ravo_column& column) noexcept {
  const std::size_t most = static_cast<std::size_t>(PTRDIFF_MAX) / RowSize(column) - 1;
  return column.length > most || column.offset > most - column.length;
}

ravo_status CheckOne(const ravo_column& column, ValuesOfRows values, ravo_error* error) noexcept {
  if (column.size < sizeof column) return FailArgument(error, "the size of the column is unknown");
  if (!Has(column, values) && !IsDictionary(column))
    return FailArgument(error, values == kTexts ? "the layout is not one of texts"
                                                : "the layout or the width is not that of the numbers");
  const std::string_view fault = FaultOfShape(column);
  if (!fault.empty()) return FailArgument(error, fault);
  if (HasTooManyRows(column)) return Fail(error, {RAVO_RANGE, 0, 0, "the column has too many rows"});
  return RAVO_OK;
}

template <class Signed>
std::uint64_t LoadIndex(const ravo_column& column, std::size_t row) noexcept {
  const auto index = LoadAt<Signed>(column.values, column.offset + row);
  if (column.layout == RAVO_LAYOUT_DICTIONARY) return static_cast<std::uint64_t>(std::int64_t{index});
  return static_cast<std::make_unsigned_t<Signed>>(index);
}

}  // namespace

std::uint64_t IndexAt(const ravo_column& column, std::size_t row) noexcept {
  switch (column.width) {
    case 1:
      return LoadIndex<std::int8_t>(column, row);
    case 2:
      return LoadIndex<std::int16_t>(column, row);
    case 4:
      return LoadIndex<std::int32_t>(column, row);
    default:
      return LoadIndex<std::int64_t>(column, row);
  }
}

ravo_status CheckColumn(const ravo_column* column, ValuesOfRows values, std::uint32_t flags,
                        ravo_error* error) noexcept {
  if (column == nullptr) return FailArgument(error, "the column is null");
  if ((flags & ~std::uint32_t{RAVO_TRUSTED}) != 0) return FailArgument(error, "a flag is unknown");
  const ravo_status status = CheckOne(*column, values, error);
  if (status != RAVO_OK) return status;
  if (IsDictionary(*column) != (column->dictionary != nullptr))
    return FailArgument(error, "the layout and the dictionary do not fit each other");
  if (column->dictionary == nullptr) return RAVO_OK;
  if (IsDictionary(*column->dictionary))
    return FailArgument(error, "the dictionary has a dictionary of its own");
  return CheckOne(*column->dictionary, values, error);
}

ravo_status FailRow(Row found, std::size_t row, ravo_error* error) noexcept {
  const std::string_view message = found == Row::Broken ? "the value of the row is not in the column's data"
                                                        : "the result of the row does not fit its column";
  return Fail(error, {RAVO_RANGE, 0, row, message});
}

ravo_status Report(const Run& run, std::size_t done, std::size_t total, ravo_error* error) {
  if (run.progress == nullptr) return RAVO_OK;
  const std::int32_t code = run.progress(run.context, done, total);
  if (code == 0) return RAVO_OK;
  return FailStopped(error, code, done);
}

}  // namespace ravo::c

#include "support.h"

#include <charconv>
#include <optional>

using ravo::c::Fail;
using ravo::c::FailArgument;
using ravo::c::Guarded;
using ravo::c::ReadText;

namespace {

// A schema and an array, or a field of both.
struct ArrowColumn {
  const ArrowSchema* schema = nullptr;
  const ArrowArray* array = nullptr;
  // Rows of a batch that its fields have too, before its own, and how many it has.
  std::int64_t batch_offset = 0;
  std::optional<std::int64_t> batch_length;
};

struct Format {
  ravo_layout layout = 0;
  std::int32_t width = 0;
  std::int64_t buffers = 0;  // at least
};

struct FormatRow {
  std::string_view text;
  Format format;
};

constexpr FormatRow kValueFormats[] = {
    {"u", {RAVO_LAYOUT_OFFSETS_32, 0, 3}}, {"z", {RAVO_LAYOUT_OFFSETS_32, 0, 3}},
    {"U", {RAVO_LAYOUT_OFFSETS_64, 0, 3}}, {"Z", {RAVO_LAYOUT_OFFSETS_64, 0, 3}},
    {"vu", {RAVO_LAYOUT_VIEWS, 0, 3}},     {"vz", {RAVO_LAYOUT_VIEWS, 0, 3}},
    {"i", {RAVO_LAYOUT_NUMBERS, 4, 2}},    {"tdD", {RAVO_LAYOUT_NUMBERS, 4, 2}},
    {"l", {RAVO_LAYOUT_NUMBERS, 8, 2}},
};
constexpr FormatRow kIndexFormats[] = {
    {"c", {RAVO_LAYOUT_DICTIONARY, 1, 2}}, {"C", {RAVO_LAYOUT_DICTIONARY_UNSIGNED, 1, 2}},
    {"s", {RAVO_LAYOUT_DICTIONARY, 2, 2}}, {"S", {RAVO_LAYOUT_DICTIONARY_UNSIGNED, 2, 2}},
    {"i", {RAVO_LAYOUT_DICTIONARY, 4, 2}}, {"I", {RAVO_LAYOUT_DICTIONARY_UNSIGNED, 4, 2}},
    {"l", {RAVO_LAYOUT_DICTIONARY, 8, 2}}, {"L", {RAVO_LAYOUT_DICTIONARY_UNSIGNED, 8, 2}},
};

template <std::size_t size>
Format FindFormat(const FormatRow (&rows)[size], std::string_view text) noexcept {
  const auto* const found = std::ranges::find(rows, text, &FormatRow::text);
  return found == std::end(rows) ? Format{} : found->format;
}

Format FixedFormat(std::string_view text) noexcept {
  if (!text.starts_with("w:")) return {};
  Format format{RAVO_LAYOUT_FIXED, 0, 2};
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data() + 2, end, format.width);
  return read.ec == std::errc() && read.ptr == end && format.width > 0 ? format : Format{};
}

Format FormatOf(const ArrowSchema& schema) noexcept {
  const std::string_view text = schema.format;
  if (schema.dictionary != nullptr) return FindFormat(kIndexFormats, text);
  const Format format = FindFormat(kValueFormats, text);
  return format.layout != 0 ? format : FixedFormat(text);
}

bool IsLive(const ArrowSchema* schema) noexcept {
  return schema != nullptr && schema->release != nullptr && schema->format != nullptr;
}

bool IsLive(const ArrowArray* array) noexcept { return array != nullptr && array->release != nullptr; }

bool IsSize(std::int64_t value) noexcept { return value >= 0 && std::uint64_t(value) <= PTRDIFF_MAX; }

// What keeps an array from having its format; empty if nothing does.
std::string_view FaultOf(const ArrowColumn& column, const Format& format) noexcept {
  const ArrowArray& array = *column.array;
  if (format.layout == 0) return "the format is not that of a column of texts or numbers";
  if (!IsSize(array.length) || !IsSize(array.offset)) return "the array has a length or offset out of range";
  if (array.n_buffers < format.buffers || array.buffers == nullptr)
    return "the array has fewer buffers than its format";
  if (format.layout != RAVO_LAYOUT_VIEWS && array.n_buffers != format.buffers)
    return "the array has more buffers than its format";
  if ((column.schema->dictionary == nullptr) != (array.dictionary == nullptr))
    return "the schema and the array do not both have a dictionary";
  return {};
}

void TakeBuffers(const ArrowArray& array, ravo_column& column) noexcept {
  column.validity = array.null_count == 0 ? nullptr : static_cast<const std::uint8_t*>(array.buffers[0]);
  column.values = array.buffers[1];
  if (column.layout == RAVO_LAYOUT_VIEWS) {
    // After validity and views come the buffers of texts, and last their sizes.
    column.buffer_count = static_cast<std::size_t>(array.n_buffers - 3);
    column.buffers = array.buffers + 2;
    column.buffer_sizes = static_cast<const std::int64_t*>(array.buffers[array.n_buffers - 1]);
  } else if (array.n_buffers == 3) {
    column.data = static_cast<const char*>(array.buffers[2]);
    column.data_size = RAVO_SIZE_UNKNOWN;
  }
}

ravo_status Describe(const ArrowColumn& from, ravo_column& column, ravo_error* error) noexcept {
  if (!IsLive(from.schema) || !IsLive(from.array))
    return FailArgument(error, "the schema or the array is null or released");
  const Format format = FormatOf(*from.schema);
  const std::string_view fault = FaultOf(from, format);
  if (!fault.empty()) return FailArgument(error, fault);
  const std::int64_t length = from.batch_length.value_or(from.array->length);
  if (from.batch_offset > from.array->length || length > from.array->length - from.batch_offset)
    return FailArgument(error, "the field has fewer rows than its batch");
  column = RAVO_COLUMN_INIT;
  column.layout = format.layout;
  column.width = format.width;
  column.length = static_cast<std::size_t>(length);
  column.offset = static_cast<std::size_t>(from.array->offset) + static_cast<std::size_t>(from.batch_offset);
  TakeBuffers(*from.array, column);
  return RAVO_OK;
}

ravo_status CheckBatch(const ArrowColumn& batch, ravo_error* error) noexcept {
  const ArrowSchema& schema = *batch.schema;
  const ArrowArray& array = *batch.array;
  if (std::string_view(schema.format) != "+s") return FailArgument(error, "the array is no batch of columns");
  const bool has_children =
      schema.n_children == 0 || (schema.children != nullptr && array.children != nullptr);
  if (schema.n_children < 0 || schema.n_children != array.n_children || !has_children)
    return FailArgument(error, "the schema and the array do not have the same fields");
  if (!IsSize(array.length) || !IsSize(array.offset))
    return FailArgument(error, "the array has a length or offset out of range");
  const bool has_validity = array.n_buffers > 0 && array.buffers != nullptr && array.buffers[0] != nullptr;
  if (has_validity && array.null_count != 0)
    return FailArgument(error, "rows of the batch itself may be null");
  return RAVO_OK;
}

// Writes the field of a batch to `*column`, which is the batch before.
ravo_status FindField(std::string_view name, ArrowColumn& column, ravo_error* error) noexcept {
  const ArrowColumn batch = column;
  const ravo_status status = CheckBatch(batch, error);
  if (status != RAVO_OK) return status;
  for (std::int64_t i = 0; i < batch.schema->n_children; ++i) {
    const ArrowSchema* const field = batch.schema->children[i];
    if (field == nullptr || field->name == nullptr || field->name != name) continue;
    column = {field, batch.array->children[i], batch.array->offset, batch.array->length};
    return RAVO_OK;
  }
  return Fail(error, {RAVO_UNKNOWN, 0, 0, "the batch has no column of that name"});
}

// As ravo_column_of_arrow, with the name as a view; null: no batch.
ravo_status DescribeField(ArrowColumn from, const char* field, std::string_view name, ravo_column& column,
                          ravo_column* dictionary, ravo_error* error) noexcept {
  if (!IsLive(from.schema) || !IsLive(from.array))
    return FailArgument(error, "the schema or the array is null or released");
  ravo_status status = field == nullptr ? RAVO_OK : FindField(name, from, error);
  ravo_column found = RAVO_COLUMN_INIT;
  if (status == RAVO_OK) status = Describe(from, found, error);
  if (status == RAVO_OK && from.schema->dictionary != nullptr) {
    if (dictionary == nullptr) return FailArgument(error, "the column of the dictionary is null");
    if (from.schema->dictionary->dictionary != nullptr)
      return FailArgument(error, "the dictionary has a dictionary of its own");
    status = Describe({from.schema->dictionary, from.array->dictionary, 0, {}}, *dictionary, error);
    found.dictionary = dictionary;
  }
  if (status == RAVO_OK) column = found;
  return status;
}

// Something of the Arrow interface that is released exactly once.
template <class Struct>
class Owned {
 public:
  Owned() noexcept = default;
  explicit Owned(const Struct& taken) noexcept : value_(taken) {}
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;
  ~Owned() {
    if (value_.release != nullptr) value_.release(&value_);
  }

  [[nodiscard]] Struct* Get() noexcept { return &value_; }
  // What a failed call left is nothing to release.
  void Forget() noexcept { value_.release = nullptr; }
  [[nodiscard]] bool IsReleased() const noexcept { return value_.release == nullptr; }

 private:
  Struct value_{};
};

// The stream's own words may be of any length and encoding: whole characters of them that fit.
std::string_view MessageOf(ArrowArrayStream& stream) noexcept {
  const char* const words = stream.get_last_error == nullptr ? nullptr : stream.get_last_error(&stream);
  if (words == nullptr) return "the stream failed";
  const std::string_view fits = std::string_view(words).substr(0, sizeof(ravo_error::message) - 1);
  return fits.substr(0, ravo::c::WellFormedLength(fits));
}

ravo_status FailStream(ArrowArrayStream& stream, int code, ravo_error* error) noexcept {
  return Fail(error, {RAVO_STOPPED, code, 0, MessageOf(stream)});
}

struct BatchSink {
  const char* field = nullptr;
  std::string_view name;
  ravo_batch batch = nullptr;
  void* context = nullptr;
};

ravo_status SendBatch(const ArrowSchema& schema, const ArrowArray& array, const BatchSink& sink,
                      std::uint64_t& first_row, ravo_error* error) {
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_column dictionary = RAVO_COLUMN_INIT;
  const ravo_status status =
      DescribeField({&schema, &array, 0, {}}, sink.field, sink.name, column, &dictionary, error);
  if (status != RAVO_OK) return status;
  const std::int32_t code = sink.batch(sink.context, &column, first_row);
  if (code != 0) return ravo::c::FailStopped(error, code, 0);
  first_row += column.length;
  return RAVO_OK;
}

ravo_status SendBatches(ArrowArrayStream& stream, const BatchSink& sink, ravo_error* error) {
  Owned<ArrowSchema> schema;
  int code = stream.get_schema(&stream, schema.Get());
  if (code != 0) schema.Forget();
  std::uint64_t first_row = 0;
  while (code == 0) {
    Owned<ArrowArray> array;
    code = stream.get_next(&stream, array.Get());
    if (code != 0) {
      array.Forget();
      break;
    }
    if (array.IsReleased()) return RAVO_OK;
    const ravo_status status = SendBatch(*schema.Get(), *array.Get(), sink, first_row, error);
    if (status != RAVO_OK) return status;
  }
  return FailStream(stream, code, error);
}

}  // namespace

ravo_status ravo_column_of_arrow(const struct ArrowSchema* schema, const struct ArrowArray* array,
                                 const char* field, size_t field_length, ravo_column* column,
                                 ravo_column* dictionary, ravo_error* error) {
  if (column == nullptr) return FailArgument(error, "the result is null");
  const auto [name, status] = ReadText(field, field_length, error);
  if (status != RAVO_OK) return status;
  return DescribeField({schema, array, 0, {}}, field, name, *column, dictionary, error);
}

ravo_status ravo_arrow_stream(struct ArrowArrayStream* stream, const char* field, size_t field_length,
                              ravo_batch batch, void* context, ravo_error* error) {
  if (stream == nullptr || stream->release == nullptr)
    return FailArgument(error, "the stream is null or released");
  // Moved: the caller's struct is released from now on.
  Owned<ArrowArrayStream> owned(*stream);
  stream->release = nullptr;
  if (batch == nullptr) return FailArgument(error, "the function for batches is null");
  const auto [name, status] = ReadText(field, field_length, error);
  if (status != RAVO_OK) return status;
  const BatchSink sink{field, name, batch, context};
  return Guarded(error, [&] { return SendBatches(*owned.Get(), sink, error); });
}

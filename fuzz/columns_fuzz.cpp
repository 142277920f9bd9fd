// Columns of any shape over any bytes: each row that is accepted has the code and the form that the check of
// a single text gives, null and broken rows are told, and nothing is read outside of the data.
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <ravo.h>

namespace {

constexpr std::size_t kMostRows = 64;

void Require(bool condition) {
  if (!condition) std::abort();
}

// Takes numbers and bytes from the front of an input; zeros at its end.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  std::uint8_t Byte() {
    if (size_ == 0) return 0;
    --size_;
    return *data_++;
  }
  std::size_t Below(std::size_t limit) { return Byte() % limit; }

  // In memory of exactly this size, so that a byte too many is noticed.
  std::unique_ptr<char[]> Bytes(std::size_t count) {
    auto bytes = std::make_unique<char[]>(count);
    for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<char>(Byte());
    return bytes;
  }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
};

template <class Value>
Value Load(const void* values, std::size_t index) {
  Value value;
  std::memcpy(&value, static_cast<const char*>(values) + index * sizeof value, sizeof value);
  return value;
}

// A column, with the memory that it describes.
struct Owned {
  ravo_column column = RAVO_COLUMN_INIT;
  std::unique_ptr<char[]> values;
  std::unique_ptr<char[]> data;
  std::unique_ptr<char[]> validity;
  std::array<std::unique_ptr<char[]>, 3> parts;
  std::array<const void*, 3> buffers{};
  std::array<std::int64_t, 3> sizes{};
};

std::size_t ValueSize(const ravo_column& column) {
  switch (column.layout) {
    case RAVO_LAYOUT_OFFSETS_32:
      return 4;
    case RAVO_LAYOUT_OFFSETS_64:
      return 8;
    case RAVO_LAYOUT_VIEWS:
      return 16;
    default:
      return static_cast<std::size_t>(column.width);
  }
}

// Small numbers from bytes: most offsets would be out of range otherwise.
void FillSmall(Input& input, char* values, std::size_t size, std::size_t count) {
  const bool wild = input.Below(8) == 0;
  for (std::size_t i = 0; i < count; ++i) {
    std::memset(values + i * size, 0, size);
    for (std::size_t at = 0; at < size; at += wild ? 1 : 4)
      values[i * size + at] = static_cast<char>(input.Byte());
  }
}

void FillRows(Input& input, Owned& owned, std::size_t most) {
  ravo_column& column = owned.column;
  column.length = input.Below(most);
  column.offset = input.Below(20);
  const std::size_t count = column.length + column.offset;
  const std::size_t size = ValueSize(column);
  const std::size_t values = count + (column.layout <= RAVO_LAYOUT_OFFSETS_64 ? 1 : 0);
  owned.values = input.Bytes(values * size);
  if (column.layout != RAVO_LAYOUT_FIXED) FillSmall(input, owned.values.get(), size, values);
  column.values = owned.values.get();
  if (input.Below(2) == 0) return;
  owned.validity = input.Bytes((count + 7) / 8);
  column.validity = reinterpret_cast<const std::uint8_t*>(owned.validity.get());
}

void FillTexts(Input& input, Owned& owned) {
  ravo_column& column = owned.column;
  column.layout = static_cast<ravo_layout>(RAVO_LAYOUT_OFFSETS_32 + input.Below(4));
  if (column.layout == RAVO_LAYOUT_FIXED) column.width = static_cast<std::int32_t>(1 + input.Below(30));
  FillRows(input, owned, kMostRows);
  column.data_size = input.Byte();
  owned.data = input.Bytes(column.data_size);
  column.data = owned.data.get();
  column.buffer_count = input.Below(4);
  for (std::size_t i = 0; i < column.buffer_count; ++i) {
    owned.sizes[i] = input.Byte();
    owned.parts[i] = input.Bytes(static_cast<std::size_t>(owned.sizes[i]));
    owned.buffers[i] = owned.parts[i].get();
  }
  column.buffers = owned.buffers.data();
  column.buffer_sizes = owned.sizes.data();
}

void FillIndices(Input& input, Owned& owned, const ravo_column& entries) {
  ravo_column& column = owned.column;
  column.layout = input.Below(2) == 0 ? RAVO_LAYOUT_DICTIONARY : RAVO_LAYOUT_DICTIONARY_UNSIGNED;
  column.width = 1 << input.Below(4);
  FillRows(input, owned, kMostRows);
  column.dictionary = &entries;
}

bool IsNull(const ravo_column& column, std::size_t row) {
  const std::size_t bit = column.offset + row;
  return column.validity != nullptr && (column.validity[bit / 8] & 1U << bit % 8) == 0;
}

// A row as the layouts are described, apart from how the library reads them.
struct Row {
  bool broken = false;
  std::optional<std::string> text;
};

Row Sliced(const void* data, std::int64_t size, std::int64_t begin, std::int64_t end) {
  if (begin < 0 || begin > end || end > size) return {true, {}};
  return {false, std::string(static_cast<const char*>(data) + begin, static_cast<std::size_t>(end - begin))};
}

Row ViewAt(const ravo_column& column, std::size_t at) {
  const char* const view = static_cast<const char*>(column.values) + at * 16;
  const std::int64_t length = Load<std::int32_t>(view, 0);
  if (length < 0) return {true, {}};
  if (length <= 12) return Sliced(view + 4, 12, 0, length);
  const std::int64_t number = Load<std::int32_t>(view, 2);
  if (number < 0 || number >= static_cast<std::int64_t>(column.buffer_count)) return {true, {}};
  const auto buffer = static_cast<std::size_t>(number);
  const std::int64_t begin = Load<std::int32_t>(view, 3);
  return Sliced(column.buffers[buffer], column.buffer_sizes[buffer], begin, begin + length);
}

Row FixedAt(const ravo_column& column, std::size_t at) {
  const auto width = static_cast<std::size_t>(column.width);
  std::string text(static_cast<const char*>(column.values) + at * width, width);
  text.erase(text.find_last_not_of('\0') + 1);
  return {false, text};
}

std::int64_t IndexAt(const ravo_column& column, std::size_t at) {
  const bool is_signed = column.layout == RAVO_LAYOUT_DICTIONARY;
  switch (column.width) {
    case 1:
      return is_signed ? Load<std::int8_t>(column.values, at) : Load<std::uint8_t>(column.values, at);
    case 2:
      return is_signed ? Load<std::int16_t>(column.values, at) : Load<std::uint16_t>(column.values, at);
    case 4:
      return is_signed ? Load<std::int32_t>(column.values, at) : Load<std::uint32_t>(column.values, at);
    default:
      return Load<std::int64_t>(column.values, at);
  }
}

Row RowAt(const ravo_column& column, std::size_t row) {
  if (IsNull(column, row)) return {};
  const std::size_t at = column.offset + row;
  const auto size = static_cast<std::int64_t>(column.data_size);
  switch (column.layout) {
    case RAVO_LAYOUT_OFFSETS_32:
      return Sliced(column.data, size, Load<std::int32_t>(column.values, at),
                    Load<std::int32_t>(column.values, at + 1));
    case RAVO_LAYOUT_OFFSETS_64:
      return Sliced(column.data, size, Load<std::int64_t>(column.values, at),
                    Load<std::int64_t>(column.values, at + 1));
    case RAVO_LAYOUT_VIEWS:
      return ViewAt(column, at);
    case RAVO_LAYOUT_FIXED:
      return FixedAt(column, at);
    default:
      break;
  }
  const std::int64_t index = IndexAt(column, at);
  if (index < 0 || index >= static_cast<std::int64_t>(column.dictionary->length)) return {true, {}};
  return RowAt(*column.dictionary, static_cast<std::size_t>(index));
}

// The code of one text, and its canonical form.
std::uint16_t CodeOf(ravo_kind kind, const std::string& text, std::string& form) {
  char buffer[RAVO_VALUE_SIZE] = "";
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status status =
      ravo_check(kind, text.data(), text.size(), buffer, sizeof buffer, nullptr, &error);
  form = status == RAVO_OK ? buffer : "";
  if (status == RAVO_UTF8) return RAVO_CODE_NOT_UTF8;
  Require(status == RAVO_OK || status == RAVO_WRONG);
  return status == RAVO_OK ? std::uint16_t{0} : static_cast<std::uint16_t>(error.code);
}

void CheckColumn(ravo_kind kind, const ravo_column& column) {
  std::array<std::uint16_t, kMostRows> codes{};
  std::array<std::int32_t, kMostRows + 1> offsets{};
  std::string data(kMostRows * RAVO_VALUE_SIZE, '\0');
  ravo_texts texts = RAVO_TEXTS_INIT;
  texts.layout = RAVO_LAYOUT_OFFSETS_32;
  texts.offsets = offsets.data();
  texts.data = data.data();
  texts.data_size = data.size();
  ravo_answers answers = RAVO_ANSWERS_INIT;
  answers.codes = codes.data();
  answers.texts = &texts;
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status status = ravo_check_column(kind, &column, 0, &answers, nullptr, nullptr, &error);
  Require(status == RAVO_OK || (status == RAVO_RANGE && error.position < column.length));
  std::size_t wrong = 0;
  for (std::size_t row = 0; row < column.length; ++row) {
    const Row expected = RowAt(column, row);
    if (expected.broken) {
      Require(status == RAVO_RANGE && error.position == row);
      return;
    }
    if (status != RAVO_OK) continue;
    std::string form;
    const std::uint16_t code = expected.text ? CodeOf(kind, *expected.text, form) : RAVO_CODE_NULL;
    wrong += expected.text && code != 0 ? 1U : 0U;
    Require(codes[row] == code);
    const auto begin = static_cast<std::size_t>(offsets[row]);
    Require(data.substr(begin, static_cast<std::size_t>(offsets[row + 1]) - begin) == form);
  }
  Require(status == RAVO_OK && answers.wrong == wrong);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const auto kind = static_cast<ravo_kind>(1 + input.Below(RAVO_KIND_ISBN));
  Owned texts;
  FillTexts(input, texts);
  CheckColumn(kind, texts.column);
  Owned indices;
  FillIndices(input, indices, texts.column);
  CheckColumn(kind, indices.column);
  return 0;
}

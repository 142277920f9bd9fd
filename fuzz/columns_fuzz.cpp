// Columns of any shape over any bytes: each row has the code, the text and the number that the function for a
// single value gives, null and broken rows are told, and nothing is read outside of the data.
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
  const bool is_free = column.layout == RAVO_LAYOUT_FIXED || column.layout == RAVO_LAYOUT_NUMBERS;
  if (!is_free) FillSmall(input, owned.values.get(), size, values);
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

void FillNumbers(Input& input, Owned& owned) {
  owned.column.layout = RAVO_LAYOUT_NUMBERS;
  owned.column.width = input.Below(2) == 0 ? 4 : 8;
  FillRows(input, owned, kMostRows);
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
    case RAVO_LAYOUT_NUMBERS:
      return Sliced(static_cast<const char*>(column.values) + at * static_cast<std::size_t>(column.width),
                    column.width, 0, column.width);
    default:
      break;
  }
  const std::int64_t index = IndexAt(column, at);
  if (index < 0 || index >= static_cast<std::int64_t>(column.dictionary->length)) return {true, {}};
  return RowAt(*column.dictionary, static_cast<std::size_t>(index));
}

// What a function says of a row.
struct Expected {
  std::uint16_t code = 0;
  std::string text;
  std::int64_t number = 0;
};

bool IsUtf8(const std::string& text) {
  ravo_kind kind = 0;
  return ravo_kind_of(text.data(), text.size(), &kind, nullptr) != RAVO_UTF8;
}

std::uint16_t CodeOf(ravo_status status, const ravo_error& error) {
  switch (status) {
    case RAVO_UTF8:
      return RAVO_CODE_NOT_UTF8;
    case RAVO_MALFORMED:
      return RAVO_CODE_MALFORMED;
    case RAVO_LACKING:
      return RAVO_CODE_LACKING;
    default:
      Require(status == RAVO_WRONG);
      return static_cast<std::uint16_t>(error.code);
  }
}

Expected OfCheck(ravo_kind kind, const std::string& text) {
  char buffer[RAVO_VALUE_SIZE] = "";
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status status =
      ravo_check(kind, text.data(), text.size(), buffer, sizeof buffer, nullptr, &error);
  // The check itself looks at UTF-8 late.
  Require((status == RAVO_UTF8) == !IsUtf8(text));
  if (status != RAVO_OK) return {CodeOf(status, error), {}};
  return {0, buffer};
}

Expected OfBank(const std::string& text) {
  const std::string digits = text.substr(text.find_last_of('/') + 1);
  if (!IsUtf8(text)) return {RAVO_CODE_NOT_UTF8, {}};
  if (digits.size() != 4 || digits.find_first_not_of("0123456789") != std::string::npos) return {1404, {}};
  ravo_bank bank = RAVO_BANK_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status status = ravo_bank_find(nullptr, std::atoi(digits.c_str()), &bank, &error);
  if (status != RAVO_OK) return {CodeOf(status, error), {}};
  return {0, bank.name};
}

Expected OfTable(const std::string& text) {
  if (!IsUtf8(text)) return {RAVO_CODE_NOT_UTF8, {}};
  ravo_suite_table table = RAVO_SUITE_TABLE_INIT;
  for (std::size_t i = 0; ravo_suite_table_at(i, &table, nullptr) == RAVO_OK; ++i) {
    if (table.name == text) return {0, {}, table.first};
  }
  return {RAVO_CODE_UNKNOWN, {}};
}

Expected OfDate(const std::string& text) {
  ravo_day day = 0;
  switch (ravo_day_read(text.data(), text.size(), &day, nullptr)) {
    case RAVO_OK:
      return {0, {}, std::int64_t{day} - RAVO_DAY_1970};
    case RAVO_UTF8:
      return {RAVO_CODE_NOT_UTF8, {}};
    case RAVO_RANGE:
      return {1501, {}};
    default:
      return {RAVO_CODE_NO_DATE, {}};
  }
}

Expected OfDay(const std::string& bytes) {
  char buffer[RAVO_DATE_SIZE] = "";
  const auto day = Load<std::int32_t>(bytes.data(), 0);
  const ravo_status status = ravo_day_format(day, RAVO_DATE_CZECH, buffer, sizeof buffer, nullptr, nullptr);
  return status == RAVO_OK ? Expected{0, buffer} : Expected{1501, {}};
}

Expected OfMoney(ravo_money step, ravo_rounding rounding, const std::string& bytes) {
  ravo_money result = 0;
  const auto amount = Load<ravo_money>(bytes.data(), 0);
  const ravo_status status = ravo_money_round(amount, step, rounding, &result, nullptr);
  return status == RAVO_OK ? Expected{0, {}, result} : Expected{1601, {}};
}

Expected OfConversion(ravo_encoding from, ravo_encoding to, ravo_convert_policy policy,
                      const std::string& bytes) {
  std::string buffer(8 * bytes.size() + 64, '\0');
  std::size_t length = 0;
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status status = ravo_convert(from, bytes.data(), bytes.size(), to, policy, buffer.data(),
                                          buffer.size(), &length, nullptr, nullptr, &error);
  if (status != RAVO_OK) return {CodeOf(status, error), {}};
  return {0, buffer.substr(0, length)};
}

// Room for the answers of a column.
struct Room {
  Room() {
    texts.layout = RAVO_LAYOUT_OFFSETS_32;
    texts.offsets = offsets.data();
    texts.data = data.data();
    texts.data_size = data.size();
    answers.codes = codes.data();
  }

  std::array<std::uint16_t, kMostRows> codes{};
  std::array<std::int32_t, kMostRows + 1> offsets{};
  std::array<std::int64_t, kMostRows> numbers{};
  std::array<std::int32_t, kMostRows> days{};
  std::string data = std::string(kMostRows * 2048, '\0');
  ravo_texts texts = RAVO_TEXTS_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
};

// Compares each row with what is expected of its bytes. `call` fills the room.
template <class Call, class Expect>
void Compare(const ravo_column& column, Call call, Expect expect) {
  Room room;
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_status status = call(room, &error);
  Require(status == RAVO_OK || (status == RAVO_RANGE && error.position < column.length));
  std::size_t wrong = 0;
  for (std::size_t row = 0; row < column.length; ++row) {
    const Row found = RowAt(column, row);
    if (found.broken) {
      Require(status == RAVO_RANGE && error.position == row);
      return;
    }
    if (status != RAVO_OK) continue;
    const Expected expected = found.text ? expect(*found.text) : Expected{RAVO_CODE_NULL, {}};
    wrong += found.text && expected.code != 0 ? 1U : 0U;
    Require(room.codes[row] == expected.code);
    // A function writes one of the two.
    Require(room.numbers[row] + room.days[row] == expected.number);
    const auto begin = static_cast<std::size_t>(room.offsets[row]);
    Require(room.data.compare(begin, static_cast<std::size_t>(room.offsets[row + 1]) - begin,
                              expected.text) == 0);
  }
  Require(status == RAVO_OK && room.answers.wrong == wrong);
}

void CheckTexts(ravo_kind kind, const ravo_column& column) {
  Compare(
      column,
      [&](Room& room, ravo_error* error) {
        room.answers.texts = &room.texts;
        return ravo_check_column(kind, &column, 0, &room.answers, nullptr, nullptr, error);
      },
      [&](const std::string& text) { return OfCheck(kind, text); });
  Compare(
      column,
      [&](Room& room, ravo_error* error) {
        return ravo_check_column(kind, &column, 0, &room.answers, nullptr, nullptr, error);
      },
      [&](const std::string& text) {
        return Expected{OfCheck(kind, text).code, {}};
      });
}

void FindBanks(const ravo_column& column) {
  Compare(
      column,
      [&](Room& room, ravo_error* error) {
        room.answers.texts = &room.texts;
        return ravo_bank_find_column(nullptr, &column, 0, &room.answers, nullptr, nullptr, error);
      },
      OfBank);
}

void FindTables(const ravo_column& column) {
  Compare(
      column,
      [&](Room& room, ravo_error* error) {
        return ravo_suite_table_find_column(&column, 0, room.days.data(), &room.answers, nullptr, nullptr,
                                            error);
      },
      OfTable);
}

void ReadDays(const ravo_column& column) {
  Compare(
      column,
      [&](Room& room, ravo_error* error) {
        return ravo_day_read_column(&column, 0, RAVO_DAY_1970, room.days.data(), &room.answers, nullptr,
                                    nullptr, error);
      },
      OfDate);
}

bool IsFixed(const ravo_column& column) {
  return column.layout == RAVO_LAYOUT_FIXED || (column.dictionary != nullptr && IsFixed(*column.dictionary));
}

// Units of two or four bytes.
bool IsWide(ravo_encoding encoding) {
  ravo_encoding_info info = RAVO_ENCODING_INFO_INIT;
  Require(ravo_encoding_at(encoding, &info, nullptr) == RAVO_OK);
  const std::string_view name = info.name;
  return name.starts_with("UTF_16") || name.starts_with("UTF_32") || name.starts_with("UCS_");
}

void Convert(Input& input, const ravo_column& column) {
  const auto from = static_cast<ravo_encoding>(input.Below(ravo_encoding_count()));
  const auto to = static_cast<ravo_encoding>(input.Below(ravo_encoding_count()));
  const auto policy = static_cast<ravo_convert_policy>(input.Below(2));
  const auto call = [&](Room& room, ravo_error* error) {
    room.answers.texts = &room.texts;
    return ravo_convert_column(from, &column, 0, to, policy, &room.answers, nullptr, nullptr, error);
  };
  ravo_encoding_info read = RAVO_ENCODING_INFO_INIT;
  ravo_encoding_info written = RAVO_ENCODING_INFO_INIT;
  Require(ravo_encoding_at(from, &read, nullptr) == RAVO_OK &&
          ravo_encoding_at(to, &written, nullptr) == RAVO_OK);
  if (!read.can_read || !written.can_write || (IsWide(from) && IsFixed(column))) {
    Room room;
    Require(call(room, nullptr) == RAVO_ARGUMENT);
    return;
  }
  Compare(column, call, [&](const std::string& bytes) { return OfConversion(from, to, policy, bytes); });
}

void CheckNumbers(Input& input, const ravo_column& column, std::int32_t width) {
  const auto step = static_cast<ravo_money>(1 + input.Below(200));
  const auto rounding = static_cast<ravo_rounding>(input.Below(3));
  if (width == 8) {
    Compare(
        column,
        [&](Room& room, ravo_error* error) {
          return ravo_money_round_column(&column, 0, step, rounding, room.numbers.data(), &room.answers,
                                         nullptr, nullptr, error);
        },
        [&](const std::string& bytes) { return OfMoney(step, rounding, bytes); });
    return;
  }
  Compare(
      column,
      [&](Room& room, ravo_error* error) {
        room.answers.texts = &room.texts;
        return ravo_day_format_column(&column, 0, 0, RAVO_DATE_CZECH, &room.answers, nullptr, nullptr, error);
      },
      OfDay);
}

void CheckTexts(Input& input, const ravo_column& column) {
  switch (input.Below(5)) {
    case 0:
      return FindBanks(column);
    case 1:
      return FindTables(column);
    case 2:
      return ReadDays(column);
    case 3:
      return Convert(input, column);
    default:
      return CheckTexts(static_cast<ravo_kind>(1 + input.Below(RAVO_KIND_ISBN)), column);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const bool has_numbers = input.Below(3) == 0;
  Owned values;
  has_numbers ? FillNumbers(input, values) : FillTexts(input, values);
  const auto check = [&](const ravo_column& column) {
    has_numbers ? CheckNumbers(input, column, values.column.width) : CheckTexts(input, column);
  };
  check(values.column);
  Owned indices;
  FillIndices(input, indices, values.column);
  check(indices.column);
  return 0;
}

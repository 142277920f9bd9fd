// Columns of libravo: ten million company numbers, accounts and IBANs in one call, of which every twentieth
// is wrong, beside a loop in C++ that calls the check for each and keeps its reason. Offsets are trusted, or
// checked as well; views and a dictionary of 4,096 entries are checked; canonical forms are written too.
// A million bank codes, names of tables, amounts, dates, days and texts in Windows-1250 beside loops in C++.

#include "czech_values.h"
#include "ratio.h"
#include <ravo/codec/encoding.h>
#include <ravo/czech/banks.h>
#include <ravo/czech/day_text.h>
#include <ravo/runtime/currency.h>

#include <charconv>
#include <cstdint>
#include <cstring>
#include <random>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include <benchmark/benchmark.h>
#include <ravo.h>

namespace {

using namespace ravo::czech;

constexpr std::size_t kRows = 10'000'000;

// One column in every layout.
struct Values {
  explicit Values(Kind kind) {
    const std::vector<std::string> correct = ravo::bench::ValuesOf(kind);
    std::mt19937_64 random(3);
    offsets.reserve(kRows + 1);
    for (std::size_t i = 0; i < kRows; ++i) {
      std::string value = correct[random() % correct.size()];
      if (i % 20 == 0) value.back() ^= 1;
      data += value;
      offsets.push_back(static_cast<std::int32_t>(data.size()));
    }
  }

  std::string data;
  std::vector<std::int32_t> offsets{0};
  std::vector<std::uint16_t> codes = std::vector<std::uint16_t>(kRows);
};

Values& ValuesInMemory(Kind kind) {
  static Kind last{};
  static std::vector<Values> values;
  if (values.empty() || last != kind) {
    values.clear();
    values.emplace_back(kind);
    last = kind;
  }
  return values.front();
}

void RunLoop(benchmark::State& state, Kind kind) {
  Values& values = ValuesInMemory(kind);
  for (auto _ : state) {
    std::size_t wrong = 0;
    for (std::size_t i = 0; i < kRows; ++i) {
      const auto begin = static_cast<std::size_t>(values.offsets[i]);
      const auto end = static_cast<std::size_t>(values.offsets[i + 1]);
      const Code code = Check(kind, std::string_view(values.data.data() + begin, end - begin)).code;
      values.codes[i] = static_cast<std::uint16_t>(code);
      wrong += code == Code::Correct ? 0U : 1U;
    }
    benchmark::DoNotOptimize(wrong);
  }
  state.counters["items"] = static_cast<double>(kRows);
}

void RunCall(benchmark::State& state, Kind kind, const ravo_column& column, ravo_answers answers,
             std::uint32_t flags) {
  for (auto _ : state) {
    const ravo_status status =
        ravo_check_column(static_cast<ravo_kind>(kind), &column, flags, &answers, nullptr, nullptr, nullptr);
    if (status != RAVO_OK) state.SkipWithError("the column was refused");
    benchmark::DoNotOptimize(answers.wrong);
  }
  state.counters["items"] = static_cast<double>(kRows);
}

ravo_column ColumnOf(const Values& values) {
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_OFFSETS_32;
  column.length = kRows;
  column.values = values.offsets.data();
  column.data = values.data.data();
  column.data_size = values.data.size();
  return column;
}

ravo_answers CodesOf(Values& values) {
  ravo_answers answers = RAVO_ANSWERS_INIT;
  answers.codes = values.codes.data();
  return answers;
}

void RunOffsets(benchmark::State& state, Kind kind, std::uint32_t flags) {
  Values& values = ValuesInMemory(kind);
  RunCall(state, kind, ColumnOf(values), CodesOf(values), flags);
}

void RunForms(benchmark::State& state, Kind kind) {
  Values& values = ValuesInMemory(kind);
  std::vector<std::int64_t> offsets(kRows + 1);
  std::string data(values.data.size(), '\0');
  ravo_texts texts = RAVO_TEXTS_INIT;
  texts.layout = RAVO_LAYOUT_OFFSETS_64;
  texts.offsets = offsets.data();
  texts.data = data.data();
  texts.data_size = data.size();
  ravo_answers answers = CodesOf(values);
  answers.texts = &texts;
  RunCall(state, kind, ColumnOf(values), answers, 0);
}

void RunViews(benchmark::State& state, Kind kind) {
  Values& values = ValuesInMemory(kind);
  std::vector<std::int32_t> views(4 * kRows);
  for (std::size_t i = 0; i < kRows; ++i) {
    const std::int32_t begin = values.offsets[i];
    const std::int32_t length = values.offsets[i + 1] - begin;
    views[4 * i] = length;
    std::memcpy(&views[4 * i + 1], &values.data[static_cast<std::size_t>(begin)],
                length <= 12 ? static_cast<std::size_t>(length) : 4);
    if (length > 12) views[4 * i + 3] = begin;
  }
  const void* const buffer = values.data.data();
  const auto size = static_cast<std::int64_t>(values.data.size());
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_VIEWS;
  column.length = kRows;
  column.values = views.data();
  column.buffers = &buffer;
  column.buffer_sizes = &size;
  column.buffer_count = 1;
  RunCall(state, kind, column, CodesOf(values), 0);
}

void RunDictionary(benchmark::State& state, Kind kind) {
  Values& values = ValuesInMemory(kind);
  ravo_column entries = ColumnOf(values);
  entries.length = 4096;
  std::mt19937_64 random(4);
  std::vector<std::uint16_t> indices(kRows);
  for (std::uint16_t& index : indices) index = static_cast<std::uint16_t>(random() % entries.length);
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_DICTIONARY_UNSIGNED;
  column.width = 2;
  column.length = kRows;
  column.values = indices.data();
  column.dictionary = &entries;
  RunCall(state, kind, column, CodesOf(values), 0);
}

constexpr std::size_t kFewRows = 1'000'000;

// A column of texts, with room for its results.
struct Texts {
  explicit Texts(const std::vector<std::string>& values) {
    std::mt19937_64 random(5);
    for (std::size_t i = 0; i < kFewRows; ++i) {
      data += values[random() % values.size()];
      offsets.push_back(static_cast<std::int32_t>(data.size()));
    }
    texts.layout = RAVO_LAYOUT_OFFSETS_32;
    texts.offsets = made_offsets.data();
    texts.data_size = made.size();
    texts.data = made.data();
    answers.codes = codes.data();
    column.layout = RAVO_LAYOUT_OFFSETS_32;
    column.length = kFewRows;
    column.values = offsets.data();
    column.data = data.data();
    column.data_size = data.size();
  }
  [[nodiscard]] std::string_view At(std::size_t i) const {
    const auto begin = static_cast<std::size_t>(offsets[i]);
    return {data.data() + begin, static_cast<std::size_t>(offsets[i + 1]) - begin};
  }

  std::string data;
  std::vector<std::int32_t> offsets{0};
  std::vector<std::uint16_t> codes = std::vector<std::uint16_t>(kFewRows);
  std::vector<std::int32_t> numbers = std::vector<std::int32_t>(kFewRows);
  std::vector<std::int32_t> made_offsets = std::vector<std::int32_t>(kFewRows + 1);
  std::string made = std::string(64 * kFewRows, '\0');
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_texts texts = RAVO_TEXTS_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
};

// Numbers, with room for what comes of them.
template <class Number>
struct Numbers {
  Numbers(std::int64_t first, std::int64_t count) {
    std::mt19937_64 random(6);
    for (Number& value : values)
      value = static_cast<Number>(first +
                                  static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(count)));
    texts.layout = RAVO_LAYOUT_FIXED;
    texts.width = 10;
    texts.data = made.data();
    texts.data_size = made.size();
    answers.codes = codes.data();
    column.layout = RAVO_LAYOUT_NUMBERS;
    column.width = sizeof(Number);
    column.length = kFewRows;
    column.values = values.data();
  }

  std::vector<Number> values = std::vector<Number>(kFewRows);
  std::vector<Number> results = std::vector<Number>(kFewRows);
  std::vector<std::uint16_t> codes = std::vector<std::uint16_t>(kFewRows);
  std::string made = std::string(10 * kFewRows, '\0');
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_texts texts = RAVO_TEXTS_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
};

Texts& BankCodes() {
  static Texts texts({"0100", "0300", "0600", "0800", "2010", "2700", "5500", "9999"});
  return texts;
}

Texts& TableNames() {
  static Texts texts([] {
    std::vector<std::string> names;
    ravo_suite_table table = RAVO_SUITE_TABLE_INIT;
    for (std::size_t i = 0; ravo_suite_table_at(i, &table, nullptr) == RAVO_OK; ++i)
      names.emplace_back(table.name);
    return names;
  }());
  return texts;
}

Texts& Dates() {
  static Texts texts([] {
    std::vector<std::string> dates;
    for (std::int32_t day = 2'455'000; day < 2'461'000; ++day)
      dates.emplace_back(DateText({day}, day % 2 == 0 ? DateForm::Iso : DateForm::Czech).View());
    return dates;
  }());
  return texts;
}

Texts& CzechTexts() {
  static Texts texts(
      {"\xDA\xE8"
       "etn\xED den\xEDk",
       "P\xF8"
       "ijat\xE1 faktura",
       "materi\xE1l", "\x8Aroub M8",
       "slu\x9E"
       "by"});
  return texts;
}

Numbers<std::int64_t>& Amounts() {
  static Numbers<std::int64_t> numbers(-1'000'000'000, 2'000'000'000);
  return numbers;
}

Numbers<std::int32_t>& Days() {
  static Numbers<std::int32_t> numbers(2'440'000, 40'000);
  return numbers;
}

// Runs a call, or a loop over all rows.
template <class Call>
void RunOnce(benchmark::State& state, Call call) {
  for (auto _ : state) {
    if (call() != RAVO_OK) state.SkipWithError("the column was refused");
    benchmark::ClobberMemory();
  }
  state.counters["items"] = static_cast<double>(kFewRows);
}

template <class Work>
void RunEach(benchmark::State& state, Work work) {
  for (auto _ : state) {
    for (std::size_t i = 0; i < kFewRows; ++i) work(i);
    benchmark::ClobberMemory();
  }
  state.counters["items"] = static_cast<double>(kFewRows);
}

void BankCall(benchmark::State& state) {
  Texts& rows = BankCodes();
  RunOnce(state, [&] {
    return ravo_bank_find_column(nullptr, &rows.column, 0, &rows.answers, nullptr, nullptr, nullptr);
  });
}

void BankLoop(benchmark::State& state) {
  Texts& rows = BankCodes();
  const BankList list = BuiltInBanks();
  RunEach(state, [&](std::size_t i) {
    const std::string_view text = rows.At(i);
    std::uint16_t code = 0;
    std::from_chars(text.data(), text.data() + text.size(), code);
    rows.codes[i] = static_cast<std::uint16_t>(FindBank(list, code, list.date).code);
  });
}

void TableCall(benchmark::State& state) {
  Texts& rows = TableNames();
  RunOnce(state, [&] {
    return ravo_suite_table_find_column(&rows.column, 0, rows.numbers.data(), &rows.answers, nullptr, nullptr,
                                        nullptr);
  });
}

void TableLoop(benchmark::State& state) {
  Texts& rows = TableNames();
  std::unordered_map<std::string_view, std::int32_t> ids;
  ravo_suite_table table = RAVO_SUITE_TABLE_INIT;
  for (std::size_t i = 0; ravo_suite_table_at(i, &table, nullptr) == RAVO_OK; ++i)
    ids[table.name] = table.first;
  RunEach(state, [&](std::size_t i) { rows.numbers[i] = ids.find(rows.At(i))->second; });
}

void MoneyCall(benchmark::State& state) {
  auto& rows = Amounts();
  RunOnce(state, [&] {
    return ravo_money_round_column(&rows.column, 0, 10000, RAVO_ROUND_HALF_AWAY, rows.results.data(),
                                   &rows.answers, nullptr, nullptr, nullptr);
  });
}

void MoneyLoop(benchmark::State& state) {
  auto& rows = Amounts();
  RunEach(state, [&](std::size_t i) {
    rows.results[i] = ravo::RoundedTo({rows.values[i]}, {10000}, ravo::Rounding::HalfAwayFromZero).raw;
  });
}

void ReadCall(benchmark::State& state) {
  Texts& rows = Dates();
  RunOnce(state, [&] {
    return ravo_day_read_column(&rows.column, 0, RAVO_DAY_1970, rows.numbers.data(), &rows.answers, nullptr,
                                nullptr, nullptr);
  });
}

void ReadLoop(benchmark::State& state) {
  Texts& rows = Dates();
  RunEach(state, [&](std::size_t i) {
    std::string_view text = rows.At(i);
    const auto date = TakeDate(text);
    rows.numbers[i] = date && text.empty() && Exists(*date) ? DayOf(*date).number - RAVO_DAY_1970 : 0;
  });
}

void WriteCall(benchmark::State& state) {
  auto& rows = Days();
  rows.answers.texts = &rows.texts;
  RunOnce(state, [&] {
    return ravo_day_format_column(&rows.column, 0, 0, RAVO_DATE_ISO, &rows.answers, nullptr, nullptr,
                                  nullptr);
  });
}

void WriteLoop(benchmark::State& state) {
  auto& rows = Days();
  RunEach(state, [&](std::size_t i) {
    const auto text = DateText({rows.values[i]}, DateForm::Iso);
    std::memcpy(rows.made.data() + 10 * i, text.characters.data(), 10);
  });
}

void ConvertCall(benchmark::State& state) {
  Texts& rows = CzechTexts();
  ravo_encoding from = 0;
  ravo_encoding to = 0;
  ravo_encoding_find("Windows_1250", RAVO_NUL_TERMINATED, &from, nullptr);
  ravo_encoding_find("UTF_8", RAVO_NUL_TERMINATED, &to, nullptr);
  rows.answers.texts = &rows.texts;
  RunOnce(state, [&] {
    return ravo_convert_column(from, &rows.column, 0, to, RAVO_CONVERT_STRICT, &rows.answers, nullptr,
                               nullptr, nullptr);
  });
}

// The engines, row by row.
void ConvertLoop(benchmark::State& state) {
  Texts& rows = CzechTexts();
  const auto* from = ravo::codec::FindEncoding("Windows_1250");
  const auto* to = ravo::codec::FindEncoding("UTF_8");
  std::vector<char16_t> units(64);
  std::size_t made = 0;
  RunEach(state, [&](std::size_t i) {
    made = i == 0 ? 0 : made;
    ravo::codec::State decoder;
    ravo::codec::State encoder;
    const std::string_view text = rows.At(i);
    const ravo::codec::ByteSpan bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    const auto step = ravo::codec::Decode(*from, decoder, bytes, units, ravo::codec::Input::IsLast);
    const std::span room(reinterpret_cast<std::uint8_t*>(rows.made.data()), rows.made.size());
    made += ravo::codec::Encode(*to, encoder, {units.data(), step.made}, room.subspan(made)).made;
    rows.made_offsets[i + 1] = static_cast<std::int32_t>(made);
  });
}

void RegisterPair(const std::string& job, void (*call)(benchmark::State&), void (*loop)(benchmark::State&)) {
  benchmark::RegisterBenchmark((job + "/ravo").c_str(), call);
  benchmark::RegisterBenchmark((job + "/cpp_loop").c_str(), loop);
}

}  // namespace

int main(int argc, char** argv) {
  for (const Kind kind : {Kind::Ico, Kind::Account, Kind::Iban}) {
    const std::string name(KindText(kind));
    const auto add = [&](const std::string& job, auto run, auto... parameters) {
      benchmark::RegisterBenchmark((name + job).c_str(), run, kind, parameters...);
      benchmark::RegisterBenchmark((name + job.substr(0, job.find('/')) + "/cpp_loop").c_str(), RunLoop,
                                   kind);
    };
    add("_trusted/ravo", RunOffsets, std::uint32_t{RAVO_TRUSTED});
    add("_checked/ravo", RunOffsets, std::uint32_t{0});
    add("_forms/ravo", RunForms);
    add("_views/ravo", RunViews);
    add("_dictionary/ravo", RunDictionary);
  }
  RegisterPair("banks", BankCall, BankLoop);
  RegisterPair("tables_by_name", TableCall, TableLoop);
  RegisterPair("amounts_rounded", MoneyCall, MoneyLoop);
  RegisterPair("dates_read", ReadCall, ReadLoop);
  RegisterPair("dates_written", WriteCall, WriteLoop);
  RegisterPair("texts_converted", ConvertCall, ConvertLoop);
  return ravo::bench::RunWithRatios(argc, argv);
}

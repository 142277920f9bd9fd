// Columns of libravo: ten million company numbers, accounts and IBANs in one call, of which every twentieth
// is wrong, beside a loop in C++ that calls the check for each and keeps its reason. Offsets are trusted, or
// checked as well; views and a dictionary of 4,096 entries are checked; canonical forms are written too.

#include "czech_values.h"
#include "ratio.h"

#include <cstdint>
#include <cstring>
#include <random>
#include <string>
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
  return ravo::bench::RunWithRatios(argc, argv);
}

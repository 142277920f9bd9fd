// Czech identifiers, one check each by kind on ASCII input, with the canonical form, beside a plain loop that
// copies the digits and sums them, and beside the limit that each check is held to: 40 ns. Columns of ten
// million values beside the same loop and python-stdnum. Payment data found in statements of a bank, by the
// byte, beside a pattern without any sums and the limit of 5 ns, which is 200 MB a second.

#include "czech_values.h"
#include "ratio.h"
#include <ravo/czech/czech.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

using namespace ravo::czech;

using ravo::bench::Digits;
using ravo::bench::MakeAccount;
using ravo::bench::MakeIban;
using ravo::bench::ValuesOf;

void CheckOne(benchmark::State& state, Kind kind) {
  const std::vector<std::string> values = ValuesOf(kind);
  std::size_t correct = 0;
  for (auto _ : state) {
    for (const std::string& value : values) correct += Check(kind, std::string_view(value)) ? 1U : 0U;
    benchmark::DoNotOptimize(correct);
  }
  state.counters["items"] = static_cast<double>(values.size());
}

// A rival that takes so many nanoseconds: a limit, or what was measured elsewhere.
void Figure(benchmark::State& state, double nanoseconds) {
  for (auto _ : state) benchmark::ClobberMemory();
  state.counters["figure"] = nanoseconds;
}

// What a program without this room would write: copy the digits and letters, then sum them with weights.
bool PlainLoop(std::string_view value) {
  std::string digits;
  for (const char character : value) {
    if ((character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z')) digits += character;
  }
  int sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) sum = (sum * 10 + (digits[i] - '0')) % 97;
  return sum % 11 == 0;
}

void PlainOne(benchmark::State& state, Kind kind) {
  const std::vector<std::string> values = ValuesOf(kind);
  std::size_t correct = 0;
  for (auto _ : state) {
    for (const std::string& value : values) correct += PlainLoop(value) ? 1U : 0U;
    benchmark::DoNotOptimize(correct);
  }
  state.counters["items"] = static_cast<double>(values.size());
}

// A column as a table in memory has it: the characters of all values, and where each ends.
class Column {
 public:
  explicit Column(const std::vector<std::string>& values) {
    std::mt19937_64 random(3);
    ends_.reserve(kRows);
    characters_.reserve(kRows * (values[0].size() + 1));
    for (std::size_t i = 0; i < kRows; ++i) {
      characters_ += values[random() % values.size()];
      ends_.push_back(characters_.size());
    }
  }

  static constexpr std::size_t kRows = 10'000'000;

  template <class Check>
  std::size_t Count(Check check) const {
    std::size_t count = 0;
    std::size_t begin = 0;
    for (const std::size_t end : ends_) {
      count += check(std::string_view(characters_).substr(begin, end - begin)) ? 1U : 0U;
      begin = end;
    }
    return count;
  }

 private:
  std::string characters_;
  std::vector<std::size_t> ends_;
};

template <class Check>
void CheckColumn(benchmark::State& state, Kind kind, Check check) {
  const Column column(ValuesOf(kind));
  for (auto _ : state) benchmark::DoNotOptimize(column.Count(check));
  state.counters["items"] = static_cast<double>(Column::kRows);
}

// The nanoseconds that python-stdnum takes for a value; 0 if it is not installed or lacks the kind.
double WitnessTime(Kind kind) {
  const auto file = std::filesystem::temp_directory_path() / "ravo_czech_bench.txt";
  std::ofstream out(file);
  for (const std::string& value : ValuesOf(kind)) out << value << '\n';
  out.close();
  const std::string command = RAVO_STDNUM " " + std::string(KindText(kind)) + " " + file.string();
  double nanoseconds = 0;
  if (std::FILE* const pipe = popen(command.c_str(), "r")) {
    if (std::fscanf(pipe, "%lf", &nanoseconds) != 1) nanoseconds = 0;
    pclose(pipe);
  }
  std::filesystem::remove(file);
  return nanoseconds;
}

void RegisterColumn(Kind kind) {
  const std::string name = "column_of_" + std::string(KindText(kind));
  const auto ours = [kind](std::string_view value) { return static_cast<bool>(Check(kind, value)); };
  const auto add = [&](const char* rival, auto check) {
    benchmark::RegisterBenchmark((name + rival).c_str(),
                                 [kind, check](benchmark::State& state) { CheckColumn(state, kind, check); });
  };
  add("/ravo", ours);
  add("/plain_loop", PlainLoop);
  const double witness = WitnessTime(kind);
  if (witness > 0) benchmark::RegisterBenchmark((name + "/python-stdnum").c_str(), Figure, witness);
}

// Messages of payments, as banks' statements have them; a third of their bytes are digits.
std::string StatementText() {
  std::mt19937_64 random(2);
  std::string text;
  while (text.size() < 1'000'000) {
    text += "Příchozí úhrada od Jana Nováková, Nádražní 1234/5, 602 00 Brno; ";
    text +=
        MakeAccount(random) + " VS " + Digits(random, 4) + " " + Digits(random, 3) + " " + Digits(random, 3);
    text += ", KS: 0308, částka " + Digits(random, 5) + ",00 Kč dne 12. 3. 2026, faktura 51/2026\n";
    text += "Platba kartou " + Digits(random, 16) + " obchod Potraviny s.r.o., " + MakeIban(random);
    text += " variabilní symbol: " + Digits(random, 10) + "\n";
  }
  return text;
}

void FindPayments(benchmark::State& state) {
  const std::string text = StatementText();
  std::size_t found = 0;
  for (auto _ : state) {
    for (auto payment = FindPayment(text); payment; payment = FindPayment(text, payment->end)) ++found;
    benchmark::DoNotOptimize(found);
  }
  state.counters["items"] = static_cast<double>(text.size());
}
BENCHMARK(FindPayments)->Name("byte_of_payment_text/ravo");

// A pattern as one would write it, without any sums.
void FindByPattern(benchmark::State& state) {
  const std::string text = StatementText().substr(0, 100'000);
  const std::regex pattern(
      "([0-9]{1,6}-)?[0-9]{2,10}/[0-9]{4}|[A-Z]{2}[0-9]{2}[A-Z0-9]{11,30}|[VKS]S:? ?[0-9 ]{1,12}");
  std::ptrdiff_t found = 0;
  for (auto _ : state) {
    found += std::distance(std::sregex_iterator(text.begin(), text.end(), pattern), std::sregex_iterator());
    benchmark::DoNotOptimize(found);
  }
  state.counters["items"] = static_cast<double>(text.size());
}
BENCHMARK(FindByPattern)->Name("byte_of_payment_text/std::regex");

BENCHMARK_CAPTURE(Figure, byte, 5.0)->Name("byte_of_payment_text/limit");

}  // namespace

int main(int argc, char** argv) {
  for (const Kind kind : AllKinds()) {
    const std::string name(KindText(kind));
    benchmark::RegisterBenchmark((name + "/ravo").c_str(), CheckOne, kind);
    benchmark::RegisterBenchmark((name + "/plain_loop").c_str(), PlainOne, kind);
    benchmark::RegisterBenchmark((name + "/limit").c_str(), Figure, 40.0);
  }
  for (const Kind kind : {Kind::Ico, Kind::Dic, Kind::BirthNumber, Kind::Account, Kind::Iban})
    RegisterColumn(kind);
  return ravo::bench::RunWithRatios(argc, argv);
}

// Czech identifiers, one check each by kind on ASCII input, with the canonical form, beside a plain loop that
// copies the digits and sums them, and beside the limit that each check is held to: 40 ns. Payment data found
// in statements of a bank, by the byte, beside a pattern without any sums and the limit of 5 ns, which is 200
// MB a second.

#include "ratio.h"
#include <ravo/czech/czech.h>

#include <cstdint>
#include <iterator>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

using namespace ravo::czech;

constexpr std::size_t kValues = 4096;

std::string Digits(std::mt19937_64& random, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += static_cast<char>('0' + random() % 10);
  return text;
}

// Values of a kind that are correct in form: those of the generator that pass.
template <class Make>
std::vector<std::string> Correct(Kind kind, Make make) {
  std::mt19937_64 random(1);
  std::vector<std::string> values;
  while (values.size() < kValues) {
    std::string value = make(random);
    if (Check(kind, std::string_view(value))) values.push_back(std::move(value));
  }
  return values;
}

std::string MakeBirthNumber(std::mt19937_64& random) {
  ravo::czech::FixedText<12> text;
  text.AppendNumber(random() % 100, 2);
  text.AppendNumber(1 + random() % 12 + (random() % 2 == 0 ? 50 : 0), 2);
  text.AppendNumber(1 + random() % 28, 2);
  text.Append(Digits(random, 4));
  return std::string(text.View());
}

std::string MakeAccount(std::mt19937_64& random) {
  return Digits(random, 2) + "-" + Digits(random, 10) + "/0" + Digits(random, 1) + "00";
}

std::string MakeIban(std::mt19937_64& random) {
  for (;;) {
    const auto account = ParseAccount(std::string_view(MakeAccount(random)));
    if (account) return std::string(IbanOf(account.value).text.View());
  }
}

std::vector<std::string> ValuesOf(Kind kind) {
  const auto digits = [](int count) {
    return [count](std::mt19937_64& random) { return Digits(random, count); };
  };
  switch (kind) {
    case Kind::Ico:
      return Correct(kind, digits(8));
    case Kind::Dic:
      return Correct(kind, [](auto& random) { return "CZ" + Digits(random, 8); });
    case Kind::VatNumber:
      return Correct(kind, [](auto& random) { return "DE" + Digits(random, 9); });
    case Kind::BirthNumber:
      return Correct(kind, MakeBirthNumber);
    case Kind::Iban:
      return Correct(kind, MakeIban);
    case Kind::Bic:
      return Correct(kind, [](auto& random) { return "KOMBCZPP" + Digits(random, 3); });
    case Kind::Account:
      return Correct(kind, MakeAccount);
    case Kind::PostCode:
      return Correct(kind, digits(5));
    case Kind::Ean:
    case Kind::Isbn:
      return Correct(kind, [](auto& random) { return "978" + Digits(random, 10); });
    default:
      return Correct(kind, digits(10));
  }
}

void CheckOne(benchmark::State& state, Kind kind) {
  const std::vector<std::string> values = ValuesOf(kind);
  std::size_t correct = 0;
  for (auto _ : state) {
    for (const std::string& value : values) correct += Check(kind, std::string_view(value)) ? 1U : 0U;
    benchmark::DoNotOptimize(correct);
  }
  state.counters["items"] = static_cast<double>(values.size());
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

// A limit stands in the table as a rival that takes so many nanoseconds.
void Limit(benchmark::State& state, double nanoseconds) {
  for (auto _ : state) benchmark::ClobberMemory();
  state.counters["figure"] = nanoseconds;
}
BENCHMARK_CAPTURE(Limit, byte, 5.0)->Name("byte_of_payment_text/limit");

}  // namespace

int main(int argc, char** argv) {
  for (const Kind kind : AllKinds()) {
    const std::string name(KindText(kind));
    benchmark::RegisterBenchmark((name + "/ravo").c_str(), CheckOne, kind);
    benchmark::RegisterBenchmark((name + "/plain_loop").c_str(), PlainOne, kind);
    benchmark::RegisterBenchmark((name + "/limit").c_str(), Limit, 40.0);
  }
  return ravo::bench::RunWithRatios(argc, argv);
}

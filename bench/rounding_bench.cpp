// Rounding of money beside the plain form in the processor's 80-bit arithmetic and, where it was built,
// libmpdec's quantize (halves away from zero). The amounts are those of documents: up to ten million crowns,
// four decimals.

#include "ratio.h"
#include "support/plain_rounding.h"
#include <ravo/common/accounts.h>
#include <ravo/common/rounding.h>

#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#ifdef RAVO_HAS_LIBMPDEC
#include <mpdecimal.h>
#endif

namespace {

using namespace ravo;
using namespace ravo::RavoInterfaceCommon;

const std::vector<Currency>& Amounts() {
  static const std::vector<Currency> amounts = [] {
    std::mt19937_64 random(1);
    std::vector<Currency> values(4096);
    for (Currency& value : values)
      value.raw = static_cast<std::int64_t>(random() % 200'000'000'000) - 100'000'000'000;
    return values;
  }();
  return amounts;
}

template <class Routine>
void OverAmounts(benchmark::State& state, Routine routine) {
  const auto& amounts = Amounts();
  std::int64_t sum = 0;
  for (auto _ : state) {
    for (const Currency amount : amounts) sum += routine(amount).raw;
    benchmark::DoNotOptimize(sum);
  }
  state.counters["items"] = static_cast<double>(amounts.size());
}

// Hides a value from the optimizer, as in modules that call the library. (The benchmark library's
// DoNotOptimize garbles small integers under GCC.)
template <class Value>
Value Unknown(Value value) {
  const volatile Value hidden = value;
  return hidden;
}

void RoundValueOurs(benchmark::State& state) {
  const TRoundType mode = Unknown(rtMath);
  const std::int8_t decimals = Unknown(std::int8_t{2});
  OverAmounts(state, [=](Currency value) { return RoundValue(value, mode, decimals); });
}
BENCHMARK(RoundValueOurs)->Name("RoundValue/ravo");

void RoundValueLongDouble(benchmark::State& state) {
  const TRoundType mode = Unknown(rtMath);
  const std::int8_t decimals = Unknown(std::int8_t{2});
  OverAmounts(state, [=](Currency value) { return test::plain::RoundValue(value, mode, decimals); });
}
BENCHMARK(RoundValueLongDouble)->Name("RoundValue/long_double");

// One rule for all amounts, as set in a company's settings.
void RoundDphOurs(benchmark::State& state, char16_t letter) {
  const char16_t kind = Unknown(letter);
  OverAmounts(state, [=](Currency value) { return RoundDPH(value, kind); });
}
BENCHMARK_CAPTURE(RoundDphOurs, H, u'H')->Name("RoundDPH H/ravo");
BENCHMARK_CAPTURE(RoundDphOurs, P, u'P')->Name("RoundDPH P/ravo");

void RoundDphLongDouble(benchmark::State& state, char16_t letter) {
  const char16_t kind = Unknown(letter);
  OverAmounts(state, [=](Currency value) { return test::plain::RoundDPH(value, kind); });
}
BENCHMARK_CAPTURE(RoundDphLongDouble, H, u'H')->Name("RoundDPH H/long_double");
BENCHMARK_CAPTURE(RoundDphLongDouble, P, u'P')->Name("RoundDPH P/long_double");

#ifdef RAVO_HAS_LIBMPDEC
// Each amount is converted to a decimal beforehand, so that only the rounding is measured.
void QuantizeLibmpdec(benchmark::State& state) {
  mpd_context_t context;
  mpd_init(&context, 38);
  mpd_qsetround(&context, MPD_ROUND_HALF_UP);
  std::vector<mpd_t*> values;
  for (const Currency amount : Amounts()) {
    mpd_t* value = mpd_new(&context);
    mpd_set_i64(value, amount.raw, &context);
    value->exp = -4;
    values.push_back(value);
  }
  mpd_t* hundredths = mpd_new(&context);
  mpd_set_string(hundredths, "0.01", &context);
  mpd_t* result = mpd_new(&context);
  std::uint32_t status = 0;
  for (auto _ : state) {
    for (const mpd_t* value : values) mpd_qquantize(result, value, hundredths, &context, &status);
    benchmark::DoNotOptimize(result->data[0]);
  }
  state.counters["items"] = static_cast<double>(values.size());
  for (mpd_t* value : values) mpd_del(value);
  mpd_del(hundredths);
  mpd_del(result);
}
BENCHMARK(QuantizeLibmpdec)->Name("RoundValue/libmpdec");
BENCHMARK(QuantizeLibmpdec)->Name("RoundDPH H/libmpdec");
#endif

template <class Routine>
void OverTexts(benchmark::State& state, const std::vector<std::u16string>& texts, Routine routine) {
  int valid = 0;
  for (auto _ : state) {
    for (const std::u16string& text : texts) valid += routine(text) ? 1 : 0;
    benchmark::DoNotOptimize(valid);
  }
  state.counters["items"] = static_cast<double>(texts.size());
}

std::vector<std::u16string> RandomDigits(std::size_t least, std::size_t most) {
  std::mt19937 random(2);
  std::vector<std::u16string> texts(1024);
  for (std::u16string& text : texts) {
    for (std::size_t n = least + random() % (most - least + 1); n > 0; --n) {
      text += static_cast<char16_t>(u'0' + random() % 10);
    }
  }
  return texts;
}

bool PlainLuhn(const std::u16string& digits) {
  int sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const int digit = digits[digits.size() - 1 - i] - u'0';
    if (digit < 0 || digit > 9) return false;
    const int value = i % 2 == 0 ? digit : 2 * digit;
    sum += value / 10 + value % 10;
  }
  return !digits.empty() && sum % 10 == 0;
}

bool PlainMod11(const std::u16string& digits) {
  int sum = 0;
  int weight = 1;
  for (std::size_t i = digits.size(); i-- > 0;) {
    weight = weight * 2 % 11;
    sum += (digits[i] - u'0') * weight;
  }
  return !digits.empty() && sum % 11 == 0;
}

void ValidVsOurs(benchmark::State& state) {
  OverTexts(state, RandomDigits(8, 10), [](const std::u16string& text) { return ValidVS(text); });
}
BENCHMARK(ValidVsOurs)->Name("ValidVS/ravo");

void ValidVsPlainLoop(benchmark::State& state) { OverTexts(state, RandomDigits(8, 10), PlainLuhn); }
BENCHMARK(ValidVsPlainLoop)->Name("ValidVS/plain_loop");

void UcetMod11Ours(benchmark::State& state) {
  OverTexts(state, RandomDigits(10, 16), [](const std::u16string& text) { return UcetMod11(text); });
}
BENCHMARK(UcetMod11Ours)->Name("UcetMod11/ravo");

void UcetMod11PlainLoop(benchmark::State& state) { OverTexts(state, RandomDigits(10, 16), PlainMod11); }
BENCHMARK(UcetMod11PlainLoop)->Name("UcetMod11/plain_loop");

void ValidUcetOurs(benchmark::State& state) {
  OverTexts(state, RandomDigits(2, 7), [](const std::u16string& text) { return ValidUcet(text); });
}
BENCHMARK(ValidUcetOurs)->Name("ValidUcet/ravo");

}  // namespace

int main(int argc, char** argv) { return ravo::bench::RunWithRatios(argc, argv); }

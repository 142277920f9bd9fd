// One draw of the Mersenne Twister, beside the standard library's and Boost's.
#include "ratio.h"
#include <ravo/DIUtils.h>

#include <random>

#include <boost/random/mersenne_twister.hpp>

namespace {

constexpr int kDraws = 64 * 1024;

template <class Generator, class Draw>
void Register(const char* name, Draw draw) {
  benchmark::RegisterBenchmark(name, [draw](benchmark::State& state) {
    Generator generator(5489u);
    for (auto _ : state) {
      std::uint32_t sum = 0;
      for (int i = 0; i < kDraws; ++i) sum += draw(generator);
      benchmark::DoNotOptimize(sum);
    }
    state.counters["items"] = kDraws;
  });
}

}  // namespace

int main(int argc, char** argv) {
  using ravo::DIUtils::TMT19937;
  const auto call = [](auto& generator) { return static_cast<std::uint32_t>(generator()); };
  Register<TMT19937>("mt19937/ravo", [](TMT19937& generator) { return generator.genrand_int32(); });
  Register<std::mt19937>("mt19937/std::mt19937", call);
  Register<boost::random::mt19937>("mt19937/boost::random", call);
  return ravo::bench::RunWithRatios(argc, argv);
}

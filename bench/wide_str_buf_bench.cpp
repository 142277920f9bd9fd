// Ten million appends, of single units and of short texts, beside a vector of units: into a new buffer each
// time (fresh) and into one that is emptied and used again (warm).
#include "ratio.h"
#include <ravo/DIUtils.h>

#include <string_view>

#include <malloc.h>

namespace {

using Buffer = ravo::DIUtils::TWideStrBuf;
using Vector = std::vector<char16_t>;

constexpr int kAppends = 10'000'000;
constexpr std::u16string_view kPiece = u"Účet 221";

void AddUnit(Buffer& to, char16_t unit) { to.AddChar(unit); }
void AddUnit(Vector& to, char16_t unit) { to.insert(to.end(), unit); }
void AddPiece(Buffer& to) { to.AddStr(kPiece); }
void AddPiece(Vector& to) { to.insert(to.end(), kPiece.begin(), kPiece.end()); }
void Empty(Buffer& to) { to.Reset(); }
void Empty(Vector& to) { to.clear(); }

template <class Target>
void AppendUnits(Target& to) {
  for (int i = 0; i < kAppends; ++i) AddUnit(to, static_cast<char16_t>(i));
  benchmark::ClobberMemory();
}

template <class Target>
void AppendPieces(Target& to) {
  for (int i = 0; i < kAppends; ++i) AddPiece(to);
  benchmark::ClobberMemory();
}

template <class Target, class Append>
void Fresh(benchmark::State& state, Append append) {
  for (auto _ : state) {
    state.PauseTiming();
    malloc_trim(0);
    state.ResumeTiming();
    Target target;
    append(target);
    benchmark::DoNotOptimize(target);
  }
  state.counters["items"] = kAppends;
}

template <class Target, class Append>
void Warm(benchmark::State& state, Append append) {
  Target target;
  append(target);
  for (auto _ : state) {
    Empty(target);
    append(target);
    benchmark::DoNotOptimize(target);
  }
  state.counters["items"] = kAppends;
}

template <class Target>
void Register(const std::string& name) {
  const auto units = [](Target& to) { AppendUnits(to); };
  const auto pieces = [](Target& to) { AppendPieces(to); };
  const auto add = [&name](const std::string& job, auto run) {
    benchmark::RegisterBenchmark((job + "/" + name).c_str(), run);
  };
  add("append_units_fresh", [units](benchmark::State& state) { Fresh<Target>(state, units); });
  add("append_units_warm", [units](benchmark::State& state) { Warm<Target>(state, units); });
  add("append_texts_fresh", [pieces](benchmark::State& state) { Fresh<Target>(state, pieces); });
  add("append_texts_warm", [pieces](benchmark::State& state) { Warm<Target>(state, pieces); });
}

}  // namespace

int main(int argc, char** argv) {
  Register<Buffer>("ravo");
  Register<Vector>("std::vector");
  return ravo::bench::RunWithRatios(argc, argv);
}

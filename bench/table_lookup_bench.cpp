// The description of a table by its identifier, beside hash tables that hold the same descriptions.
#include "ratio.h"
#include <ravo/catalogue/table_catalogue.h>

#include <random>
#include <unordered_map>

#include <absl/container/flat_hash_map.h>

namespace {

using View = std::u16string_view;
using Ids = std::vector<std::int32_t>;
using StandardMap = std::unordered_map<std::int32_t, View>;
using FlatMap = absl::flat_hash_map<std::int32_t, View>;

// Longer than a branch predictor can memorize.
constexpr std::size_t kSequence = 64 * 1024;

Ids KnownIds() {
  Ids ids;
  for (const ravo::TableRow& row : ravo::TableRows()) {
    for (std::int32_t id = row.first; id <= row.last; ++id) ids.push_back(id);
  }
  return ids;
}

// A random sequence in which `hits` of two identifiers are known on average. Misses come from the same range.
Ids Sequence(int hits) {
  const Ids known = KnownIds();
  std::mt19937 random(20240229);
  std::uniform_int_distribution<std::size_t> pick(0, known.size() - 1);
  std::uniform_int_distribution<std::int32_t> any(10000, 210000);
  std::uniform_int_distribution<int> coin(0, 1);
  Ids ids;
  while (ids.size() < kSequence) {
    const bool hit = coin(random) < hits;
    const std::int32_t id = hit ? known[pick(random)] : any(random);
    const bool is_known = !ravo::RavoInterfaceCommon::TableDescription(id).empty();
    if (is_known == hit) ids.push_back(id);
  }
  return ids;
}

template <class Map>
Map Filled() {
  Map map;
  for (const std::int32_t id : KnownIds()) map[id] = ravo::RavoInterfaceCommon::TableDescription(id);
  return map;
}

template <class Map>
auto LookUpIn() {
  return [map = Filled<Map>()](std::int32_t id) {
    const auto found = map.find(id);
    return found == map.end() ? View() : found->second;
  };
}

// One iteration runs through the whole sequence. The length and the address of each result are used, so that
// the compiler keeps both.
template <class LookUp>
void Walk(benchmark::State& state, const Ids& ids, const LookUp& look_up) {
  for (auto _ : state) {
    std::size_t sum = 0;
    for (const std::int32_t id : ids) {
      const View text = look_up(id);
      sum += text.size() + reinterpret_cast<std::uintptr_t>(text.data());
    }
    benchmark::DoNotOptimize(sum);
  }
  state.counters["items"] = static_cast<double>(ids.size());
}

template <class LookUp>
void Register(const std::string& job, std::string_view name, int hits, LookUp look_up) {
  const std::string full_name = job + "/" + std::string(name);
  benchmark::RegisterBenchmark(full_name.c_str(), [ids = Sequence(hits), look_up](benchmark::State& state) {
    Walk(state, ids, look_up);
  });
}

void RegisterJob(const std::string& job, int hits) {
  Register(job, ravo::bench::kOurs, hits,
           [](std::int32_t id) { return ravo::RavoInterfaceCommon::TableDescription(id); });
  Register(job, "unordered_map", hits, LookUpIn<StandardMap>());
  Register(job, "flat_hash_map", hits, LookUpIn<FlatMap>());
}

}  // namespace

int main(int argc, char** argv) {
  RegisterJob("table_hits", 2);
  RegisterJob("table_half_misses", 1);
  RegisterJob("table_misses", 0);
  return ravo::bench::RunWithRatios(argc, argv);
}

#pragma once

#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#ifndef __OPTIMIZE__
#error "Benchmarks measure optimised builds only"
#endif

/// Comparing benchmarks: each job runs with our function and with its rivals in one run, which ends with a
/// table of the medians and their ratios. Register with names of the form "job/ravo" and "job/rival" and call
/// `RunWithRatios` from `main`. The counter "items" is the number of items per run.
/// tools/pages/performance.py writes the page of figures from the report of `--benchmark_out`.
namespace ravo::bench {

inline constexpr std::string_view kOurs = "ravo";

/// Collects the median of every benchmark while the console shows the run.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") Keep(run);
    }
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    std::printf("\n%-28s %12s %-16s %12s %8s\n", "job", "ours [ns]", "rival", "rival [ns]", "ratio");
    for (const auto& [job, times] : jobs_) PrintJob(job, times);
  }

 private:
  using Times = std::map<std::string, double, std::less<>>;

  // The library appends a part such as "/repeats:9" to the registered name.
  void Keep(const Run& run) {
    const std::string& name = run.run_name.function_name;
    const std::size_t slash = name.find('/');
    if (slash == std::string::npos) return;
    jobs_[name.substr(0, slash)][name.substr(slash + 1)] = Figure(run);
  }

  // The time of one item; or the figure that the benchmark computed itself, if it does not measure time.
  static double Figure(const Run& run) {
    const auto& counters = run.counters;
    if (counters.contains("figure")) return counters.at("figure").value;
    return run.GetAdjustedCPUTime() / (counters.contains("items") ? counters.at("items").value : 1);
  }

  static void PrintJob(const std::string& job, const Times& times) {
    const auto ours = times.find(kOurs);
    if (ours == times.end()) return;
    for (const auto& [rival, time] : times) {
      if (rival == kOurs) continue;
      std::printf("%-28s %12.3f %-16s %12.3f %7.2fx\n", job.c_str(), ours->second, rival.c_str(), time,
                  time / ours->second);
    }
  }

  std::map<std::string, Times> jobs_;
};

/// Runs every registered benchmark several times in random order, so that a busy moment of the machine
/// affects all alike, and prints the ratios. Options of the command line override ours.
inline int RunWithRatios(int argc, char** argv) {
  std::vector<std::string> defaults = {"--benchmark_repetitions=9", "--benchmark_min_time=0.1",
                                       "--benchmark_enable_random_interleaving=true",
                                       "--benchmark_display_aggregates_only=true"};
  std::vector<char*> arguments(argv, argv + 1);
  for (std::string& option : defaults) arguments.push_back(option.data());
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}

}  // namespace ravo::bench

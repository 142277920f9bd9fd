#pragma once

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#ifndef __OPTIMIZE__
#error "Benchmarks measure optimised builds only"
#endif

/// Comparing benchmarks: each job runs with our function and with its rivals in one run, which ends with a
/// table of the medians and their ratios. Register with names of the form "job/ravo" and "job/rival" and call
/// `RunWithRatios` from `main`. The counter "items" is the number of items per run.
/// tools/pages/performance.py writes the page of figures from the file of `--report=FILE`.
namespace ravo::bench {

inline constexpr std::string_view kOurs = "ravo";
inline constexpr std::string_view kReport = "--report=";

/// Collects the median of every benchmark while the console shows the runs of one job after another, and
/// writes all runs to one report.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  /// `file` receives the report in JSON.
  explicit RatioReporter(std::ostream& file) { report_.SetOutputStream(&file); }

  bool ReportContext(const Context& context) override {
    const bool is_first = !std::exchange(begun_, true);
    return !is_first || (report_.ReportContext(context) && ConsoleReporter::ReportContext(context));
  }

  void ReportRuns(const std::vector<Run>& runs) override {
    report_.ReportRuns(runs);
    std::vector<Run> aggregates;
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Aggregate) continue;
      aggregates.push_back(run);
      if (run.aggregate_name == "median") Keep(run);
    }
    ConsoleReporter::ReportRuns(aggregates);
  }

  /// Called after every job; `Finish` ends the whole.
  void Finalize() override {}

  void Finish() {
    report_.Finalize();
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

  benchmark::JSONReporter report_;
  bool begun_ = false;
  std::map<std::string, Times> jobs_;
};

/// Applies options of the command line; returns whether all are known. `program` is its name there, which the
/// library keeps by reference.
inline bool Apply(char* program, std::vector<std::string> options) {
  std::vector<char*> arguments{program};
  for (std::string& option : options) arguments.push_back(option.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

/// Returns a regular expression that matches a text.
inline std::string Quoted(std::string_view text) {
  std::string expression;
  for (const char c : text) {
    if (std::string_view("\\^$.|?*+()[]{}").find(c) != std::string_view::npos) expression += '\\';
    expression += c;
  }
  return expression;
}

/// Returns the names of the jobs that the options choose, in the order of their benchmarks.
inline std::vector<std::string> Jobs(char* program) {
  std::stringstream names;
  benchmark::ConsoleReporter lister;
  lister.SetOutputStream(&names);
  Apply(program, {"--benchmark_list_tests=true"});
  benchmark::RunSpecifiedBenchmarks(&lister);
  Apply(program, {"--benchmark_list_tests=false"});
  std::vector<std::string> jobs;
  for (std::string name; std::getline(names, name);) {
    name.resize(std::min(name.find('/'), name.size()));
    if (std::ranges::find(jobs, name) == jobs.end()) jobs.push_back(name);
  }
  return jobs;
}

/// Runs one job after another, each several times with its rivals in random order, so that a busy moment of
/// the machine affects all of a job alike, and prints the ratios. Options of the command line override ours;
/// `--report=FILE` writes all runs.
inline int RunWithRatios(int argc, char** argv) {
  std::vector<std::string> options = {"--benchmark_repetitions=9", "--benchmark_min_time=0.1",
                                      "--benchmark_enable_random_interleaving=true"};
  std::ofstream file;
  for (const std::string_view option : std::span(argv + 1, argv + argc)) {
    if (option.starts_with(kReport))
      file.open(std::string(option.substr(kReport.size())));
    else
      options.emplace_back(option);
  }
  if (!Apply(argv[0], options)) return 2;
  RatioReporter reporter(file);
  for (const std::string& job : Jobs(argv[0]))
    benchmark::RunSpecifiedBenchmarks(&reporter, "^" + Quoted(job) + "/");
  reporter.Finish();
  return 0;
}

}  // namespace ravo::bench

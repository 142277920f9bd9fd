#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace tool {

/// A progress bar on standard error, or a count where the whole is not known; shown only on a terminal and
/// only once the work has taken a second; gone when the object goes.
class Progress {
 public:
  /// `whole` is the amount of work, in whatever unit `Show` counts; 0 where it is not known.
  Progress(std::string what, std::int64_t whole);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void Show(std::int64_t done);

 private:
  using Clock = std::chrono::steady_clock;

  std::string what_;
  std::int64_t whole_;
  bool on_terminal_;
  bool shown_ = false;
  Clock::time_point next_;
};

}  // namespace tool

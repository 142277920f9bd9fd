#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace tool {

/// A progress bar on standard error, or a count if the total is unknown. It appears only on a terminal and
/// only after one second of work, and is erased on destruction.
class Progress {
 public:
  /// `whole` is the total amount of work, in the unit of `Show`; 0 if unknown.
  Progress(const std::string& what, std::int64_t whole);
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

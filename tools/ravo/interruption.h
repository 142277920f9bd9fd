#pragma once

#include <filesystem>
#include <memory>

namespace tool {

/// While it lives, a file goes with the program where somebody ends that from outside (Ctrl+C, a request to
/// end, a closed terminal). Where the system keeps files that are open, the file stays. The last one made
/// counts.
class GoesOnInterruption {
 public:
  explicit GoesOnInterruption(const std::filesystem::path& file);
  ~GoesOnInterruption();
  GoesOnInterruption(const GoesOnInterruption&) = delete;
  GoesOnInterruption& operator=(const GoesOnInterruption&) = delete;

 private:
  struct Watch;
  std::unique_ptr<Watch> watch_;
};

}  // namespace tool

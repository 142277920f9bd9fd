#pragma once

#include <filesystem>
#include <memory>

namespace tool {

/// Deletes a file if the process is interrupted (Ctrl+C, a termination request, a closed terminal) while this
/// object exists. If the system does not delete open files, the file remains. Only the object created last is
/// active.
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

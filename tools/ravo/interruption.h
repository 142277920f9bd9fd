#pragma once

#include <filesystem>
#include <memory>

namespace tool {

/// Deletes a file if the process is interrupted (Ctrl+C, a termination request, a closed terminal) while this
/// object exists. If the system does not delete open files, the file remains. Only the object created last is
/// active.
class DeleteOnInterruption {
 public:
  explicit DeleteOnInterruption(const std::filesystem::path& file);
  ~DeleteOnInterruption();
  DeleteOnInterruption(const DeleteOnInterruption&) = delete;
  DeleteOnInterruption& operator=(const DeleteOnInterruption&) = delete;

 private:
  struct Watch;
  std::unique_ptr<Watch> watch_;
};

}  // namespace tool

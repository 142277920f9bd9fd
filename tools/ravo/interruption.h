#pragma once

#include <filesystem>
#include <memory>

namespace tool {

/// Deletes a file if the process is ended while this object exists: by any signal that can be caught and
/// would end it, or by the closing of its console. Several may exist at once.
class DeleteOnInterruption {
 public:
  /// `folder` is the system's descriptor of the folder to which a name is relative; a system without such
  /// descriptors takes no notice of it.
  DeleteOnInterruption(int folder, const std::filesystem::path& name);
  ~DeleteOnInterruption();
  DeleteOnInterruption(const DeleteOnInterruption&) = delete;
  DeleteOnInterruption& operator=(const DeleteOnInterruption&) = delete;

 private:
  struct Entry;
  std::unique_ptr<Entry> entry_;
};

}  // namespace tool

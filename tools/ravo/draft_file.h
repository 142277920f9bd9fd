#pragma once

#include "interruption.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tool {

/// Why a target is not written.
enum class Refused { IsFolder, IsReadOnly, IsDeadLink, IsInUse };
struct RefusedTarget {
  Refused why;
};

/// A new file beside its target, readable by its owner only; it takes the target's name at the end.
///
/// All throw `std::system_error`, the constructor also `RefusedTarget`. A target that is not a regular file
/// has no draft: it is written to.
class DraftFile {
 public:
  DraftFile(const std::filesystem::path& target, bool replace_read_only);
  DraftFile(const DraftFile&) = delete;
  DraftFile& operator=(const DraftFile&) = delete;
  /// Deletes a draft that was not published.
  ~DraftFile();

  void Write(std::string_view bytes);
  void Publish();

 private:
  struct System;
  std::unique_ptr<System> system_;
};

/// Returns a new name for a draft: short, so that it fits wherever the target's does.
[[nodiscard]] std::string NewDraftName();

}  // namespace tool

#pragma once

#include "interruption.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// Returns the system's path of a UTF-8 file name.
[[nodiscard]] std::filesystem::path PathOf(const std::string& utf8);

/// Replaces a file atomically: a reader sees the old file or the new one, never a part. The bytes go to a
/// draft file beside it, which is renamed at the end. A target that exists and is not a regular file (a
/// device, a pipe) is written to directly. The draft is deleted if the process is interrupted.
class WholeFile {
 public:
  /// `name` is UTF-8.
  explicit WholeFile(const std::string& name);
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;
  /// Keeps the old file if `Finish` was not called.
  ~WholeFile();

  /// Appends bytes; returns false if that fails.
  bool Write(std::string_view bytes);

  /// Renames the draft to the target. Returns an empty text, or the reason of a failure.
  [[nodiscard]] std::string Finish();

 private:
  [[nodiscard]] bool Publish() const;

  std::filesystem::path target_;
  std::filesystem::path draft_;
  bool is_folder_ = false;
  std::optional<DeleteOnInterruption> interruption_;
  std::ofstream file_;
};

/// Writes a whole file; `name` is UTF-8. Returns an empty text, or the reason of a failure.
[[nodiscard]] std::string WriteTextFile(const std::string& name, std::string_view bytes);

}  // namespace tool

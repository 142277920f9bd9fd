#pragma once

#include "interruption.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// The system's name of the file that `utf8` names.
[[nodiscard]] std::filesystem::path PathOf(const std::string& utf8);

/// A file that is written as a whole: a reader of its name sees the old file or the new one, never a piece.
/// The bytes go into a file beside it that takes its name in the end, and only then. What is there and is no
/// ordinary file (a device, a pipe) is written to directly. The file beside it also goes where the program is
/// interrupted.
class WholeFile {
 public:
  /// `name` is UTF-8.
  explicit WholeFile(const std::string& name);
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;
  /// Leaves what was there where `Finish` was not called.
  ~WholeFile();

  /// Adds bytes as they stand; false where that fails.
  bool Write(std::string_view bytes);

  /// Makes the bytes the file. Gives an empty text, or why it failed.
  [[nodiscard]] std::string Finish();

 private:
  [[nodiscard]] bool Publish() const;

  std::filesystem::path target_;
  std::filesystem::path draft_;
  bool is_folder_ = false;
  std::optional<GoesOnInterruption> interruption_;
  std::ofstream file_;
};

/// Writes a whole file, bytes as they stand; `name` is UTF-8. Gives an empty text, or why it failed.
[[nodiscard]] std::string WriteTextFile(const std::string& name, std::string_view bytes);

}  // namespace tool

// The files that the program writes. Every command writes through `WholeFile`.
//
// A file is whole or not there: its bytes go to a draft in the same folder, which takes the file's name at
// the end. The draft is private to its owner, has a short name of its own (draft_file.h) and is deleted if
// the work fails, or if the process is ended in any way that it can notice (interruption.h).
//
// What of the old file stays: mode, owner, group, attributes and access lists as far as the system permits. A
// symbolic link stays, and the file to which it leads is replaced. Of several hard links the named one gets
// the new file. All this is as `sed -i --follow-symlinks` does it; docs/files.md has the comparison.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tool {

class DraftFile;

/// Whether files that are marked read-only are replaced; they are refused unless the user asks for it.
void ReplaceReadOnlyFiles(bool replace);

/// Replaces a file atomically: a reader sees the old file or the new one, never a part. A target that exists
/// and is not a regular file (a device, a pipe) is written to directly, and so is standard output for "-".
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

  /// Gives the draft the name of the target. Returns an empty text, or the reason of a failure.
  [[nodiscard]] std::string Finish();

 private:
  void Flush();
  void Fail(const std::string& reason);

  std::string pending_;
  std::string failure_;
  // None for standard output.
  std::unique_ptr<DraftFile> draft_;
};

/// Writes a whole file; `name` is UTF-8. Returns an empty text, or the reason of a failure.
[[nodiscard]] std::string WriteTextFile(const std::string& name, std::string_view bytes);

}  // namespace tool

#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <span>
#include <string>

namespace tool {

/// The bytes of a file, or of standard input for the name "-".
class TableInput {
 public:
  /// `name` is UTF-8. Throws `std::runtime_error`, which says why, if the file cannot be opened.
  explicit TableInput(const std::string& name);

  /// Returns how many bytes it stored in `to`, 0 at the end and after a failure.
  [[nodiscard]] std::size_t Read(std::span<char> to);

  /// Whether reading failed before the end.
  [[nodiscard]] bool HasFailed() const noexcept { return has_failed_; }
  /// Returns the size in bytes, 0 if it is not known.
  [[nodiscard]] std::int64_t Size() const noexcept { return size_; }

 private:
  bool is_standard_;
  bool has_failed_ = false;
  std::int64_t size_ = 0;
  std::ifstream file_;
};

}  // namespace tool

#pragma once

#include "support/scratch_folder.h"

#include <atomic>
#include <string>
#include <thread>

namespace ravo::test {

/// A pipe with a file name. A thread writes `bytes` to the first reader and closes the pipe.
class NamedPipe {
 public:
  explicit NamedPipe(std::string bytes);
  NamedPipe(const NamedPipe&) = delete;
  NamedPipe& operator=(const NamedPipe&) = delete;
  /// Reads the remaining bytes, so that the writer ends.
  ~NamedPipe();

  [[nodiscard]] const std::u16string& Name() const noexcept { return name_; }

 private:
  void Write(const std::string& bytes);
  void Drain() const;

  ScratchFolder folder_;
  std::u16string name_;
  [[maybe_unused]] void* server_ = nullptr;  // on Windows
  std::atomic<bool> is_written_ = false;
  std::thread writer_;
};

}  // namespace ravo::test

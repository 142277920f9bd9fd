#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ravo::test {

/// An empty folder of its own below the system's temporary one; it goes with all that is in it.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

  /// The full name of a file of that name in the folder.
  [[nodiscard]] std::u16string File(std::u16string_view name) const;

  /// Writes a file, and the folders on the way to it.
  void Write(const std::filesystem::path& file, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

}  // namespace ravo::test

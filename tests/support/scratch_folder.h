#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ravo::test {

/// An empty folder of its own below the system's temporary one. The destructor deletes it with its contents.
class ScratchFolder {
 public:
  ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder();

  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

  /// Returns the full name of a file in the folder.
  [[nodiscard]] std::u16string File(std::u16string_view name) const;

  /// Writes a file, and creates the folders of its path.
  void Write(const std::filesystem::path& file, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

}  // namespace ravo::test

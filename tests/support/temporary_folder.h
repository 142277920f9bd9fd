#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace ravo::test {

/// A new folder that goes, with all that is in it, when this object does.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_(std::filesystem::temp_directory_path() / NewName()) {
    std::filesystem::create_directories(path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

  /// The name of a file in it, as the library takes names.
  [[nodiscard]] std::u16string Name(std::u16string_view file) const { return (path_ / file).u16string(); }

  /// Writes a file, and the folders on the way to it.
  void Write(const std::filesystem::path& file, std::string_view bytes) const {
    std::filesystem::create_directories((path_ / file).parent_path());
    std::ofstream(path_ / file, std::ios::binary) << bytes;
  }

 private:
  static std::string NewName() {
    std::random_device random;
    return "ravo-test-" + std::to_string(random()) + "-" + std::to_string(random());
  }

  std::filesystem::path path_;
};

}  // namespace ravo::test

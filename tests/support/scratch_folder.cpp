#include "support/scratch_folder.h"

#include <fstream>
#include <random>

namespace ravo::test {

ScratchFolder::ScratchFolder() {
  std::random_device random;
  do {
    path_ = std::filesystem::temp_directory_path() / ("ravo-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(path_));
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::u16string ScratchFolder::File(std::u16string_view name) const { return (path_ / name).u16string(); }

void ScratchFolder::Write(const std::filesystem::path& file, std::string_view bytes) const {
  std::filesystem::create_directories((path_ / file).parent_path());
  std::ofstream(path_ / file, std::ios::binary) << bytes;
}

}  // namespace ravo::test

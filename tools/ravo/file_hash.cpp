#include "file_hash.h"

#include "progress.h"
#include <ravo/DIUtils.h>

#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

namespace tool {
namespace {

namespace fs = std::filesystem;
namespace utils = ravo::DIUtils;

constexpr std::size_t kPiece = std::size_t{1} << 18;

fs::path PathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

std::int64_t SizeOf(const fs::path& path) {
  std::error_code error;
  const auto size = fs::file_size(path, error);
  return error ? 0 : static_cast<std::int64_t>(size);
}

class Sums {
 public:
  explicit Sums(const FileSumKind* only) : only_(only) {}

  void Update(std::span<const char> piece) {
    if (Wants(FileSum::Crc32)) crc_ = utils::UpdateCrc32OfBuf(crc_, piece.data(), piece.size());
    if (Wants(FileSum::Hash)) hash_.Update(std::as_bytes(piece));
    if (Wants(FileSum::HashIA)) hash_ia_.Update(std::as_bytes(piece));
  }
  [[nodiscard]] FileSums Values() const { return {~crc_, hash_.Value(), hash_ia_.Value()}; }

 private:
  [[nodiscard]] bool Wants(FileSum sum) const { return !only_ || only_->sum == sum; }

  const FileSumKind* only_;
  std::uint32_t crc_ = 0xFFFFFFFF;
  ravo::HashStream hash_;
  ravo::HashStream hash_ia_{0, ravo::HashStream::Letters::InUpperCase};
};

}  // namespace

std::optional<FileSums> SumsOfFile(const std::string& name, const FileSumKind* only) {
  const fs::path path = PathOf(name);
  std::error_code error;
  if (fs::is_directory(path, error)) return {};
  std::ifstream file(path, std::ios::binary);
  if (!file) return {};
  Progress progress(name, SizeOf(path));
  Sums sums(only);
  std::vector<char> piece(kPiece);
  std::int64_t done = 0;
  while (file) {
    file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    sums.Update(std::span(piece).first(static_cast<std::size_t>(file.gcount())));
    progress.Show(done += file.gcount());
  }
  if (file.bad()) return {};
  return sums.Values();
}

}  // namespace tool

#include "file_hash.h"

#include "console.h"
#include "progress.h"
#include "text_file.h"
#include <ravo/DIUtils.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace tool {
namespace {

namespace fs = std::filesystem;
namespace utils = ravo::DIUtils;

constexpr std::size_t kPiece = std::size_t{1} << 18;

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

// Computes the sums of all bytes that `read` returns, block by block.
template <class Read>
FileSums SumsOf(Read read, const FileSumKind* only, Progress&& progress) {
  Sums sums(only);
  std::vector<char> piece(kPiece);
  std::int64_t done = 0;
  while (const std::size_t count = read(std::span(piece))) {
    sums.Update(std::span(piece).first(count));
    progress.Show(done += static_cast<std::int64_t>(count));
  }
  return sums.Values();
}

std::optional<FileSums> SumsOfInput(const FileSumKind* only) {
  try {
    return SumsOf([](std::span<char> to) { return ReadInput(std::as_writable_bytes(to)); }, only,
                  Progress(std::string(kInputName), 0));
  } catch (const std::runtime_error&) {
    return {};
  }
}

}  // namespace

std::optional<FileSums> SumsOfFile(const std::string& name, const FileSumKind* only) {
  if (name == kInputName) return SumsOfInput(only);
  const fs::path path = PathOf(name);
  std::error_code error;
  if (fs::is_directory(path, error)) return {};
  std::ifstream file(path, std::ios::binary);
  if (!file) return {};
  const auto read = [&](std::span<char> to) {
    file.read(to.data(), static_cast<std::streamsize>(to.size()));
    return static_cast<std::size_t>(file.gcount());
  };
  const FileSums sums = SumsOf(read, only, Progress(name, SizeOf(path)));
  return file.bad() ? std::nullopt : std::optional(sums);
}

}  // namespace tool

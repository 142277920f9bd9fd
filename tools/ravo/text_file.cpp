#include "text_file.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace tool {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

// A name beside `target` that nobody else uses.
fs::path Beside(const fs::path& target) {
  static constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz234567";
  std::random_device random;
  std::string suffix = ".";
  for (int i = 0; i < 12; ++i) suffix += kLetters[random() % 32];
  fs::path name = target;
  name += suffix + ".tmp";
  return name;
}

bool WriteBytes(const fs::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !file.fail();
}

// The file that is meant: through a symbolic link, so that the link stays one.
fs::path Meant(const fs::path& path) {
  std::error_code error;
  const fs::path meant = fs::canonical(path, error);
  return error ? path : meant;
}

// Removes the file beside the target unless it took the target's name.
class Draft {
 public:
  explicit Draft(const fs::path& target) : path_(Beside(target)), target_(target) {}
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;
  ~Draft() {
    std::error_code ignored;
    fs::remove(path_, ignored);
  }

  [[nodiscard]] bool Write(std::string_view bytes) const { return WriteBytes(path_, bytes); }

  [[nodiscard]] bool Publish() const {
    std::error_code error;
    const fs::file_status before = fs::status(target_, error);
    if (fs::exists(before)) fs::permissions(path_, before.permissions(), error);
    fs::rename(path_, target_, error);
    return !error;
  }

 private:
  fs::path path_;
  fs::path target_;
};

bool Put(const fs::path& path, const fs::file_status& status, std::string_view bytes) {
  if (fs::is_other(status)) return WriteBytes(path, bytes);
  const Draft draft(path);
  return draft.Write(bytes) && draft.Publish();
}

}  // namespace

std::string WriteTextFile(const std::string& name, std::string_view bytes) {
  const fs::path path = Meant(PathOf(name));
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::is_directory(status)) return "is a folder";
  return Put(path, status, bytes) ? "" : "cannot be written";
}

}  // namespace tool

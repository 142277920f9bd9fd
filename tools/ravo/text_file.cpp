#include "text_file.h"

#include <random>
#include <system_error>

namespace tool {
namespace {

namespace fs = std::filesystem;

// Returns an unused name beside `target`.
fs::path DraftName(const fs::path& target) {
  static constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz234567";
  std::random_device random;
  std::string suffix = ".";
  for (int i = 0; i < 12; ++i) suffix += kLetters[random() % 32];
  fs::path name = target;
  name += suffix + ".tmp";
  return name;
}

// Resolves a symbolic link, so that the link itself is kept.
fs::path Resolved(const fs::path& path) {
  std::error_code error;
  const fs::path resolved = fs::canonical(path, error);
  return error ? path : resolved;
}

}  // namespace

fs::path PathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

WholeFile::WholeFile(const std::string& name) : target_(Resolved(PathOf(name))) {
  std::error_code error;
  const fs::file_status status = fs::status(target_, error);
  is_folder_ = fs::is_directory(status);
  if (!fs::is_other(status)) interruption_.emplace(draft_ = DraftName(target_));
  if (!is_folder_) file_.open(draft_.empty() ? target_ : draft_, std::ios::binary | std::ios::trunc);
}

// The draft file still exists unless it was renamed to the target.
WholeFile::~WholeFile() {
  file_.close();
  std::error_code ignored;
  if (!draft_.empty()) fs::remove(draft_, ignored);
}

bool WholeFile::Write(std::string_view bytes) {
  return !file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).fail();
}

bool WholeFile::Publish() const {
  std::error_code error;
  const fs::file_status before = fs::status(target_, error);
  if (fs::exists(before)) fs::permissions(draft_, before.permissions(), error);
  fs::rename(draft_, target_, error);
  return !error;
}

std::string WholeFile::Finish() {
  if (is_folder_) return "is a folder";
  file_.close();
  const bool written = !file_.fail();
  return written && (draft_.empty() || Publish()) ? "" : "cannot be written";
}

std::string WriteTextFile(const std::string& name, std::string_view bytes) {
  WholeFile file(name);
  file.Write(bytes);
  return file.Finish();
}

}  // namespace tool

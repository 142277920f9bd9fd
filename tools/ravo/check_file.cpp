#include "check_file.h"

#include "csv_reader.h"
#include "foreign_text.h"
#include "progress.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <utility>

namespace tool {
namespace {

std::filesystem::path PathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

// Widens a value unit by unit: the checks look at ASCII alone, and no byte of another character becomes
// ASCII.
class Widened {
 public:
  explicit Widened(std::string_view bytes) {
    if (bytes.size() > std::size(short_)) {
      long_.assign(bytes.size(), u'\0');
      Copy(bytes, long_.data());
      view_ = long_;
    } else {
      Copy(bytes, short_);
      view_ = {short_, bytes.size()};
    }
  }
  [[nodiscard]] std::u16string_view View() const { return view_; }

 private:
  static void Copy(std::string_view bytes, char16_t* to) {
    for (std::size_t i = 0; i < bytes.size(); ++i) to[i] = static_cast<unsigned char>(bytes[i]);
  }

  char16_t short_[64];
  std::u16string long_;
  std::u16string_view view_;
};

class FileChecker {
 public:
  FileChecker(const std::string& name, std::vector<ColumnCheck> columns, char delimiter, bool allow_empty)
      : name_(name),
        file_(PathOf(name), std::ios::binary),
        reader_([this](std::span<char> to) { return ReadSome(to); }, delimiter),
        allow_empty_(allow_empty) {
    if (!file_) throw std::runtime_error("cannot be read");
    result_.columns = std::move(columns);
  }

  FileCheck Run() {
    constexpr std::size_t kRowsBetweenShows = 4096;
    Progress progress("checking " + name_, Size());
    if (!reader_.Next(fields_)) throw std::runtime_error("has no first row with the names of its columns");
    FindColumns();
    const std::size_t count = fields_.size();
    while (reader_.Next(fields_)) {
      if (fields_.size() != count) ThrowRowLength(count);
      ++result_.rows;
      for (std::size_t i = 0; i < places_.size(); ++i) CheckValue(i, fields_[places_[i]]);
      if (result_.rows % kRowsBetweenShows == 0)
        progress.Show(static_cast<std::int64_t>(reader_.BytesRead()));
    }
    return std::move(result_);
  }

 private:
  std::size_t ReadSome(std::span<char> to) {
    file_.read(to.data(), static_cast<std::streamsize>(to.size()));
    if (file_.bad()) throw std::runtime_error("cannot be read to its end");
    return static_cast<std::size_t>(file_.gcount());
  }

  [[nodiscard]] std::int64_t Size() const {
    std::error_code error;
    const auto size = std::filesystem::file_size(PathOf(name_), error);
    return error ? 0 : static_cast<std::int64_t>(size);
  }

  void FindColumns() {
    std::vector<std::string> names;
    for (const std::string_view field : fields_) names.push_back(ForeignText(field));
    for (const ColumnCheck& column : result_.columns) {
      const auto found = std::ranges::find(names, column.name);
      if (found == names.end()) throw CsvError(reader_.Line(), "there is no column '" + column.name + "'");
      places_.push_back(static_cast<std::size_t>(found - names.begin()));
    }
  }

  void CheckValue(std::size_t index, std::string_view value) {
    if (allow_empty_ && value.empty()) return;
    ColumnCheck& column = result_.columns[index];
    Verdict verdict = column.kind->check(Widened(value).View());
    ++(verdict.valid ? column.valid : column.invalid);
    if (verdict.valid) return;
    result_.bad.push_back({reader_.Line(), index, ForeignText(value), std::move(verdict.remark)});
  }

  [[noreturn]] void ThrowRowLength(std::size_t count) const {
    throw CsvError(reader_.Line(), std::to_string(fields_.size()) + " fields, not " + std::to_string(count));
  }

  std::string name_;
  std::ifstream file_;
  CsvReader reader_;
  bool allow_empty_;
  std::vector<std::string_view> fields_;
  std::vector<std::size_t> places_;
  FileCheck result_;
};

}  // namespace

FileCheck CheckFile(const std::string& name, std::vector<ColumnCheck> columns, char delimiter,
                    bool allow_empty) {
  return FileChecker(name, std::move(columns), delimiter, allow_empty).Run();
}

}  // namespace tool

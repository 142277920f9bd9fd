#include "check_file.h"

#include "csv_file.h"
#include "foreign_text.h"

#include <string_view>
#include <utility>

namespace tool {
namespace {

// Widens a value byte by byte: the checks accept only ASCII, and no other byte becomes ASCII.
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
      : file_(name, "checking", delimiter), allow_empty_(allow_empty) {
    result_.columns = std::move(columns);
    for (const ColumnCheck& column : result_.columns) places_.push_back(file_.Column(column.name));
  }

  FileCheck Run() {
    while (file_.Next()) {
      for (std::size_t i = 0; i < places_.size(); ++i) CheckValue(i, file_.Field(places_[i]));
    }
    result_.rows = file_.Rows();
    return std::move(result_);
  }

 private:
  void CheckValue(std::size_t index, std::string_view value) {
    if (allow_empty_ && value.empty()) return;
    ColumnCheck& column = result_.columns[index];
    Verdict verdict = column.kind->check(Widened(value).View());
    ++(verdict.valid ? column.valid : column.invalid);
    if (verdict.valid) return;
    result_.bad.push_back({file_.Line(), index, ForeignText(value), std::move(verdict.remark)});
  }

  CsvFile file_;
  bool allow_empty_;
  std::vector<std::size_t> places_;
  FileCheck result_;
};

}  // namespace

FileCheck CheckFile(const std::string& name, std::vector<ColumnCheck> columns, char delimiter,
                    bool allow_empty) {
  return FileChecker(name, std::move(columns), delimiter, allow_empty).Run();
}

}  // namespace tool

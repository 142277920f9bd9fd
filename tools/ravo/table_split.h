#pragma once

#include "table_work.h"
#include "text_file.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The rows of a table with findings and all its other bytes, each in a file of its own if it has a name.
class TableSplit {
 public:
  TableSplit(const std::string& rejects, const std::string& clean);

  /// Adds the next bytes of the table; `rejected` are the rows with findings.
  void Add(std::string_view text, const std::vector<BlockWork::Piece>& rejected);

  /// Completes both files; returns false, with a message on standard error, if one could not be written.
  [[nodiscard]] bool Finish();

  /// Whether two names, which may be empty, are of the same file.
  [[nodiscard]] static bool AreSame(const std::string& one, const std::string& other);

 private:
  struct Part {
    explicit Part(const std::string& file_name) : name(file_name) {
      if (!name.empty()) file.emplace(name);
    }
    void Add(std::string_view bytes) {
      if (file) file->Write(bytes);
    }
    [[nodiscard]] bool Finish();

    std::string name;
    std::optional<WholeFile> file;
  };

  Part rejects_;
  Part clean_;
};

}  // namespace tool

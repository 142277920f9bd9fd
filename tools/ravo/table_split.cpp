#include "table_split.h"

#include "table_output.h"

#include <filesystem>
#include <system_error>

namespace tool {

TableSplit::TableSplit(const std::string& rejects, const std::string& clean)
    : rejects_(rejects), clean_(clean) {}

void TableSplit::Add(std::string_view text, const std::vector<BlockWork::Piece>& rejected) {
  std::size_t at = 0;
  for (const BlockWork::Piece& piece : rejected) {
    clean_.Add(text.substr(at, piece.begin - at));
    rejects_.Add(text.substr(piece.begin, piece.end - piece.begin));
    at = piece.end;
  }
  clean_.Add(text.substr(at));
}

bool TableSplit::Finish() {
  const bool has_rejects = rejects_.Finish();
  return clean_.Finish() && has_rejects;
}

bool TableSplit::Part::Finish() {
  const std::string failure = file ? file->Finish() : std::string();
  if (!failure.empty()) Complain(name, failure);
  return failure.empty();
}

bool TableSplit::AreSame(const std::string& one, const std::string& other) {
  if (one.empty() || other.empty()) return false;
  std::error_code error;
  const auto place = [&error](const std::string& name) {
    return std::filesystem::weakly_canonical(std::filesystem::absolute(PathOf(name), error), error);
  };
  return place(one) == place(other);
}

}  // namespace tool

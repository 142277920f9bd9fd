#include "csv_file.h"

#include "console.h"
#include "file_reason.h"
#include "foreign_text.h"
#include "reasons.h"
#include "table_columns.h"
#include "text.h"
#include "text_file.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace tool {
namespace {

constexpr std::size_t kRowsBetweenShows = 4096;

// Returns 0 if the size is unknown.
std::int64_t SizeOf(const std::string& name) {
  std::error_code error;
  const auto size = std::filesystem::file_size(PathOf(name), error);
  return error ? 0 : static_cast<std::int64_t>(size);
}

}  // namespace

CsvFile::CsvFile(const std::string& name, const std::string& doing, char delimiter)
    : is_input_(name == kInputName),
      file_(PathOf(name), std::ios::binary),
      reader_([this](std::span<char> to) { return ReadSome(to); }, delimiter),
      progress_(doing + " " + name, SizeOf(name)) {
  std::error_code error;
  if (!is_input_ && (!file_ || std::filesystem::is_directory(PathOf(name), error)))
    throw std::runtime_error(Text("cannot be read: {0}", {WhyUnreadable(name)}));
  if (!reader_.Next(fields_)) throw std::runtime_error(Text("has no first row with column names"));
  for (const std::string_view field : fields_) columns_.push_back(ForeignText(field));
}

std::size_t CsvFile::Column(std::string_view name) const {
  const FoundColumn found = FindColumn(columns_, name, reader_.Delimiter());
  if (!found.index) throw CsvError(reader_.Line(), found.why);
  return *found.index;
}

bool CsvFile::HasColumn(std::string_view name) const {
  return std::ranges::find(columns_, name) != columns_.end();
}

bool CsvFile::Next() {
  if (!reader_.Next(fields_)) return false;
  if (fields_.size() != columns_.size()) {
    throw CsvError(Line(), DescribedRagged(fields_.size(), columns_.size()));
  }
  if (++rows_ % kRowsBetweenShows == 0) progress_.Show(static_cast<std::int64_t>(reader_.BytesRead()));
  return true;
}

std::size_t CsvFile::ReadSome(std::span<char> to) {
  if (is_input_) return ReadInput(std::as_writable_bytes(to));
  file_.read(to.data(), static_cast<std::streamsize>(to.size()));
  if (file_.bad()) throw std::runtime_error(Text("cannot be read to its end"));
  return static_cast<std::size_t>(file_.gcount());
}

}  // namespace tool

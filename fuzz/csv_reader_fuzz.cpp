// Tables of fields: any bytes give rows or an error with a line, independent of how the bytes are split.
#include "../tools/ravo/csv_reader.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Reading {
  std::vector<std::vector<std::string>> rows;
  std::string error;
  bool operator==(const Reading&) const = default;
};

Reading Read(std::string_view text, std::size_t most, std::size_t block) {
  std::size_t at = 0;
  tool::CsvReader reader(
      [&](std::span<char> to) {
        const std::size_t count = std::min({most, to.size(), text.size() - at});
        std::copy_n(text.begin() + static_cast<std::ptrdiff_t>(at), count, to.begin());
        at += count;
        return count;
      },
      ';', block);
  Reading reading;
  try {
    for (std::vector<std::string_view> fields; reader.Next(fields);) {
      reading.rows.emplace_back(fields.begin(), fields.end());
    }
  } catch (const tool::CsvError& error) {
    reading.error = error.what();
  }
  return reading;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const Reading whole = Read(text, size + 1, size + 4);
  if (Read(text, 7, 1) != whole || Read(text, 1, 16) != whole) std::abort();
  return 0;
}

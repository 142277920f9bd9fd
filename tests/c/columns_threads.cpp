// Slices of one column in several threads give what one call gives. Built with ThreadSanitizer, this finds
// what the calls would share.
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include <ravo.h>

namespace {

constexpr std::size_t kRows = 40'000;
constexpr std::size_t kThreads = 4;

ravo_column EntriesOf(const std::string& values) {
  ravo_column entries = RAVO_COLUMN_INIT;
  entries.layout = RAVO_LAYOUT_FIXED;
  entries.width = 8;
  entries.length = values.size() / 8;
  entries.values = values.data();
  return entries;
}

ravo_column ColumnOf(const std::vector<std::uint8_t>& indices, const ravo_column& entries) {
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_DICTIONARY_UNSIGNED;
  column.width = 1;
  column.length = indices.size();
  column.values = indices.data();
  column.dictionary = &entries;
  return column;
}

// How many rows from `offset` on are wrong; all of them if the call fails.
std::size_t CountWrong(ravo_column column, std::size_t offset, std::size_t length, std::uint16_t* codes) {
  column.offset = offset;
  column.length = length;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  answers.codes = codes + offset;
  const ravo_status status =
      ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, nullptr, nullptr, nullptr);
  return status == RAVO_OK ? answers.wrong : length;
}

std::size_t CountInThreads(const ravo_column& column, std::vector<std::uint16_t>& codes) {
  constexpr std::size_t kSlice = kRows / kThreads;
  std::vector<std::size_t> wrong(kThreads);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kThreads; ++i)
    threads.emplace_back([&, i] { wrong[i] = CountWrong(column, i * kSlice, kSlice, codes.data()); });
  std::size_t sum = 0;
  for (std::size_t i = 0; i < kThreads; ++i) {
    threads[i].join();
    sum += wrong[i];
  }
  return sum;
}

}  // namespace

int main() {
  const std::string values = "046257810462578204625x81";
  std::vector<std::uint8_t> indices(kRows);
  for (std::size_t i = 0; i < kRows; ++i) indices[i] = static_cast<std::uint8_t>(i % 3);
  const ravo_column entries = EntriesOf(values);
  const ravo_column column = ColumnOf(indices, entries);
  std::vector<std::uint16_t> expected(kRows);
  std::vector<std::uint16_t> codes(kRows);
  // Of three rows the first is correct, and so is the last of all.
  if (CountWrong(column, 0, kRows, expected.data()) != kRows - kRows / 3 - 1) return 1;
  if (CountInThreads(column, codes) != kRows - kRows / 3 - 1 || codes != expected) return 2;
  std::puts("the same in every thread");
  return 0;
}

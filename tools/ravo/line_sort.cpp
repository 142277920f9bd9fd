#include "line_sort.h"

#include "text.h"
#include <ravo/RavoInterface.h>
#include <ravo/order/number_keys.h>

#include <algorithm>
#include <cstdint>
#include <future>
#include <iterator>
#include <limits>
#include <memory>
#include <span>
#include <stdexcept>
#include <thread>
#include <utility>

namespace tool {
namespace {

constexpr std::string_view kFieldBlanks = " \t";
// Of several keys, after each: less than any byte of a key.
constexpr char kEndOfKey = 0;

std::string_view FieldAfterBlanks(std::string_view line, std::size_t field) {
  for (std::size_t at = 1;; ++at) {
    line.remove_prefix(std::min(line.find_first_not_of(kFieldBlanks), line.size()));
    const std::size_t end = std::min(line.find_first_of(kFieldBlanks), line.size());
    if (at == field || line.empty()) return line.substr(0, end);
    line.remove_prefix(end);
  }
}

// A line and its key. The first eight bytes of most keys decide.
struct Item {
  std::uint64_t start = 0;
  const char* key = nullptr;
  std::uint32_t key_size = 0;
  std::uint32_t line = 0;

  [[nodiscard]] std::string_view Key() const { return {key, key_size}; }
};
using Items = std::vector<Item>;

std::uint64_t StartOf(std::string_view key) {
  std::uint64_t start = 0;
  for (std::size_t i = 0; i < 8; ++i)
    start = start << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
  return start;
}

int CompareKeys(const Item& a, const Item& b) {
  if (a.start != b.start) return a.start < b.start ? -1 : 1;
  return a.Key().compare(b.Key());
}

// The keys of a run of lines and their items.
class Part {
 public:
  Part(std::span<const std::string_view> lines, std::size_t first, const LineOrder& order)
      : order_(order), keys_(order.czech) {
    std::vector<std::size_t> ends;
    ends.reserve(lines.size());
    for (const std::string_view line : lines) {
      AppendKey(TextOfLine(line));
      ends.push_back(bytes_.size());
    }
    items.reserve(lines.size());
    std::size_t start = 0;
    for (const std::size_t end : ends) {
      Add(std::string_view(bytes_).substr(start, end - start), first + items.size());
      start = end;
    }
  }

  Items items;

 private:
  void AppendKey(std::string_view line) {
    if (order_.fields.empty()) return AppendKeyOf(line);
    for (const std::size_t field : order_.fields) {
      AppendKeyOf(FieldOf(line, field, order_.delimiter));
      bytes_ += kEndOfKey;
    }
  }
  void AppendKeyOf(std::string_view text) {
    if (order_.numeric) {
      ravo::order::AppendDecimalKey(text, bytes_);
    } else {
      keys_.Append(text, bytes_);
    }
  }
  void Add(std::string_view key, std::size_t line) {
    if (key.size() > std::numeric_limits<std::uint32_t>::max())
      throw std::length_error(Text("a line is too long"));
    items.push_back(
        {StartOf(key), key.data(), static_cast<std::uint32_t>(key.size()), static_cast<std::uint32_t>(line)});
  }

  const LineOrder& order_;
  ravo::order::CzechKeys keys_;
  std::string bytes_;
};

// Compares lines by their keys, and whole lines by their bytes at last.
class Comparison {
 public:
  Comparison(const Lines& lines, const LineOrder& order)
      : lines_(lines),
        reverse_(order.reverse),
        by_bytes_(order.fields.empty() && !order.numeric && !order.czech.ignore_case) {}

  [[nodiscard]] int Compare(const Item& a, const Item& b) const {
    const int keys = CompareKeys(a, b);
    return keys == 0 && by_bytes_ ? TextOfLine(lines_[a.line]).compare(TextOfLine(lines_[b.line])) : keys;
  }
  bool operator()(const Item& a, const Item& b) const {
    const int order = Compare(a, b);
    if (order == 0) return a.line < b.line;
    return reverse_ ? order > 0 : order < 0;
  }

 private:
  const Lines& lines_;
  bool reverse_;
  bool by_bytes_;
};

constexpr std::size_t kFewLines = 10'000;

std::size_t CountOfParts(std::size_t lines) {
  const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
  return std::clamp<std::size_t>(lines / kFewLines, 1, processors);
}

// Items point into their part's bytes: parts stay where they are.
using Parts = std::vector<std::unique_ptr<Part>>;

Parts SortedParts(const Lines& lines, const LineOrder& order, const Comparison& comes_first) {
  const std::size_t count = CountOfParts(lines.size());
  std::vector<std::future<std::unique_ptr<Part>>> works;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t first = lines.size() * i / count;
    const std::size_t end = lines.size() * (i + 1) / count;
    works.push_back(std::async(std::launch::async, [&lines, &order, &comes_first, first, end] {
      auto part = std::make_unique<Part>(std::span(lines).subspan(first, end - first), first, order);
      std::sort(part->items.begin(), part->items.end(), comes_first);
      return part;
    }));
  }
  Parts parts;
  for (auto& work : works) parts.push_back(work.get());
  return parts;
}

Items Merged(std::span<const std::unique_ptr<Part>> parts, const Comparison& comes_first) {
  if (parts.size() == 1) return std::move(parts[0]->items);
  const Items left = Merged(parts.first(parts.size() / 2), comes_first);
  const Items right = Merged(parts.subspan(parts.size() / 2), comes_first);
  Items all;
  all.reserve(left.size() + right.size());
  std::merge(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(all), comes_first);
  return all;
}

// A merge sort of our own: the suite's natural order is not transitive, which the standard library's
// algorithms require.
template <class Before>
void MergeSort(std::span<std::size_t> lines, const Before& before) {
  if (lines.size() < 2) return;
  const std::span<std::size_t> left = lines.first(lines.size() / 2);
  const std::span<std::size_t> right = lines.subspan(lines.size() / 2);
  MergeSort(left, before);
  MergeSort(right, before);
  std::vector<std::size_t> merged;
  merged.reserve(lines.size());
  auto from_left = left.begin();
  auto from_right = right.begin();
  while (from_left != left.end() && from_right != right.end()) {
    merged.push_back(before(*from_right, *from_left) ? *from_right++ : *from_left++);
  }
  std::copy(from_left, left.end(), std::back_inserter(merged));
  std::copy(from_right, right.end(), std::back_inserter(merged));
  std::copy(merged.begin(), merged.end(), lines.begin());
}

std::ptrdiff_t Signed(std::ptrdiff_t order, bool reverse) { return reverse ? -order : order; }

}  // namespace

std::string_view FieldOf(std::string_view line, std::size_t field, std::string_view delimiter) {
  if (delimiter.empty()) return FieldAfterBlanks(line, field);
  for (; field > 1; --field) {
    const std::size_t end = line.find(delimiter);
    if (end == std::string_view::npos) return {};
    line.remove_prefix(end + delimiter.size());
  }
  return line.substr(0, line.find(delimiter));
}

std::string_view TextOfLine(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

Lines Sorted(const Lines& lines, const LineOrder& order) {
  if (lines.size() > std::numeric_limits<std::uint32_t>::max())
    throw std::length_error(Text("too many lines"));
  const Comparison comes_first(lines, order);
  const Parts parts = SortedParts(lines, order, comes_first);
  Items items = Merged(parts, comes_first);
  if (order.unique) {
    const auto equal = [&](const Item& a, const Item& b) { return comes_first.Compare(a, b) == 0; };
    items.erase(std::unique(items.begin(), items.end(), equal), items.end());
  }
  Lines sorted;
  sorted.reserve(items.size());
  for (const Item& item : items) sorted.push_back(lines[item.line]);
  return sorted;
}

Lines SortedAsInTheSuite(const Lines& lines, SuiteOrder before, bool reverse, bool unique) {
  std::vector<std::u16string> texts;
  std::vector<std::size_t> places;
  for (const std::string_view line : lines) {
    texts.push_back(ravo::FromUtf8(TextOfLine(line)));
    places.push_back(places.size());
  }
  const auto compare = [&](std::size_t a, std::size_t b) {
    return Signed(before(texts[a], texts[b]), reverse);
  };
  MergeSort(std::span(places), [&](std::size_t a, std::size_t b) { return compare(a, b) < 0; });
  if (unique) {
    const auto equal = [&](std::size_t a, std::size_t b) { return compare(a, b) == 0; };
    places.erase(std::unique(places.begin(), places.end(), equal), places.end());
  }
  Lines sorted;
  for (const std::size_t place : places) sorted.push_back(lines[place]);
  return sorted;
}

std::size_t FirstUnlikeTheSuite(const Lines& lines, SuiteOrder before, bool reverse) {
  std::u16string above;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::u16string text = ravo::FromUtf8(TextOfLine(lines[i]));
    if (i > 0 && Signed(before(text, above), reverse) < 0) return i + 1;
    above = std::move(text);
  }
  return 0;
}

}  // namespace tool

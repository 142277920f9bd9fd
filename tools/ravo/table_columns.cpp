#include "table_columns.h"

#include "table_text.h"
#include "text.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <charconv>
#include <numeric>

namespace tool {
namespace {

using Indices = std::vector<std::size_t>;

std::u16string Folded(std::string_view utf8) {
  std::u16string text = ravo::FromUtf8(utf8);
  for (char16_t& unit : text) unit = ravo::DIUnicode::CharToCaseFoldW(unit);
  return text;
}

template <class Matches>
Indices Where(const std::vector<std::string>& names, Matches matches) {
  Indices found;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (matches(names[i])) found.push_back(i);
  }
  return found;
}

std::string Numbers(const Indices& indices) {
  std::string text;
  for (const std::size_t index : indices) text += (text.empty() ? "" : ", ") + std::to_string(index + 1);
  return text;
}

// Returns a line of its own with the names of all columns.
std::string Columns(const std::vector<std::string>& names, char delimiter) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + Shown(name);
  return "\n  " + Text("columns, split at {0}: {1}", {DelimiterName(delimiter), list});
}

// The number of units to insert, delete or replace to make one text the other.
std::size_t Distance(std::u16string_view left, std::u16string_view right) {
  std::vector<std::size_t> row(right.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < left.size(); ++i) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < right.size(); ++j) {
      const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
    }
  }
  return row.back();
}

// Returns the nearest name, or nothing if none is near.
std::string Nearest(const std::vector<std::string>& names, std::string_view wanted) {
  const std::u16string text = Folded(wanted);
  std::size_t least = 1 + text.size() / 3;
  std::string nearest;
  for (const std::string& name : names) {
    const std::size_t distance = Distance(text, Folded(name));
    if (distance > least || (distance == least && !nearest.empty())) continue;
    least = distance;
    nearest = Shown(name);
  }
  return nearest;
}

std::optional<std::size_t> ColumnNumber(std::string_view text) {
  std::size_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

FoundColumn Numbered(const std::vector<std::string>& names, std::string_view wanted, std::size_t number,
                     char delimiter) {
  if (number >= 1 && number <= names.size()) return {number - 1, {}};
  return {{},
          Text("there is no column {0}, the last one is {1}", {wanted, std::to_string(names.size())}) +
              Columns(names, delimiter)};
}

std::string NoColumn(const std::string& wanted, const std::string& nearest) {
  if (nearest.empty()) return Text("there is no column '{0}'", {wanted});
  return Text("there is no column '{0}'; did you mean '{1}'?", {wanted, nearest});
}

}  // namespace

std::string DelimiterName(char delimiter) {
  return delimiter == '\t' ? Text("tab") : std::string{'\'', delimiter, '\''};
}

FoundColumn FindColumn(const std::vector<std::string>& names, std::string_view wanted, char delimiter) {
  const Indices exact = Where(names, [&](const std::string& name) { return name == wanted; });
  if (exact.size() == 1) return {exact[0], {}};
  if (!exact.empty())
    return {{},
            Text("columns {0} are all named '{1}'; name one by its number", {Numbers(exact), Shown(wanted)})};
  const std::u16string folded = Folded(wanted);
  const Indices near = Where(names, [&](const std::string& name) { return Folded(name) == folded; });
  if (near.size() == 1) return {near[0], {}};
  if (!near.empty())
    return {{},
            Text("columns {0} are named '{1}' but for case; name one exactly or by its number",
                 {Numbers(near), Shown(wanted)})};
  if (const auto number = ColumnNumber(wanted)) return Numbered(names, wanted, *number, delimiter);
  return {{}, NoColumn(Shown(wanted), Nearest(names, wanted)) + Columns(names, delimiter)};
}

}  // namespace tool

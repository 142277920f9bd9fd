#include "table_columns.h"

#include "nearest.h"
#include "printable.h"
#include "text.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <algorithm>
#include <charconv>

namespace tool {
namespace {

using Indices = std::vector<std::size_t>;

std::string Folded(std::string_view utf8) {
  std::u16string text = ravo::FromUtf8(utf8);
  for (char16_t& unit : text) unit = ravo::DIUnicode::CharToCaseFoldW(unit);
  return ravo::ToUtf8(text);
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
std::string ColumnList(const std::vector<std::string>& names, char delimiter) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + OnOneLine(name);
  return "\n  " + Text("columns, split at {0}: {1}", {DelimiterName(delimiter), list});
}

// One byte a letter, so that a wrong accent counts as one mistake.
std::string InLetters(std::string_view utf8) { return ravo::ToCodePage(ravo::FromUtf8(utf8), 1250); }

// Returns the name that is nearest without case, or nothing.
std::string NearestName(const std::vector<std::string>& names, std::string_view wanted) {
  std::vector<std::string> folded;
  folded.reserve(names.size());
  for (const std::string& name : names) folded.push_back(InLetters(Folded(name)));
  const std::string nearest = Nearest(InLetters(Folded(wanted)), folded);
  if (nearest.empty()) return {};
  return OnOneLine(names[static_cast<std::size_t>(std::ranges::find(folded, nearest) - folded.begin())]);
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
              ColumnList(names, delimiter)};
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
    return {
        {},
        Text("columns {0} are all named '{1}'; name one by its number", {Numbers(exact), OnOneLine(wanted)})};
  const std::string folded = Folded(wanted);
  const Indices near = Where(names, [&](const std::string& name) { return Folded(name) == folded; });
  if (near.size() == 1) return {near[0], {}};
  if (!near.empty())
    return {{},
            Text("columns {0} are named '{1}' but for case; name one exactly or by its number",
                 {Numbers(near), OnOneLine(wanted)})};
  if (const auto number = ColumnNumber(wanted)) return Numbered(names, wanted, *number, delimiter);
  return {{}, NoColumn(OnOneLine(wanted), NearestName(names, wanted)) + ColumnList(names, delimiter)};
}

}  // namespace tool

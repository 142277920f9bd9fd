#include <ravo/runtime/error.h>
#include <ravo/runtime/string_list.h>
#include <ravo/runtime/text.h>

#include <numeric>

namespace ravo {
namespace {

std::u16string_view NameOf(std::u16string_view line) {
  const std::size_t equals = line.find(u'=');
  return equals == std::u16string_view::npos ? std::u16string_view() : line.substr(0, equals);
}

std::u16string_view ValueOf(std::u16string_view line) {
  const std::size_t equals = line.find(u'=');
  return equals == std::u16string_view::npos ? std::u16string_view() : line.substr(equals + 1);
}

// Returns the length in units of the line break at the start of `text`.
std::size_t BreakLength(std::u16string_view text) { return text.starts_with(u"\r\n") ? 2 : 1; }

}  // namespace

const std::u16string& StringList::At(std::size_t index) const {
  if (index >= lines_.size()) throw RangeError(u"List index out of bounds");
  return lines_[index];
}

std::u16string StringList::Text() const {
  std::u16string text;
  text.reserve(std::accumulate(lines_.begin(), lines_.end(), std::size_t{0},
                               [](std::size_t sum, const auto& line) { return sum + line.size() + 2; }));
  for (const std::u16string& line : lines_) text.append(line).append(u"\r\n");
  return text;
}

void StringList::SetText(std::u16string_view text) {
  std::vector<std::u16string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(u"\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == std::u16string_view::npos) break;
    text.remove_prefix(end);
    text.remove_prefix(BreakLength(text));
  }
  lines_ = std::move(lines);
}

std::u16string_view StringList::NameAt(std::size_t index) const { return NameOf(At(index)); }

std::u16string_view StringList::ValueAt(std::size_t index) const { return ValueOf(At(index)); }

std::optional<std::size_t> StringList::IndexOfName(std::u16string_view name) const {
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const bool has_name = lines_[i].find(u'=') != std::u16string::npos;
    if (has_name && SameAsciiText(NameOf(lines_[i]), name)) return i;
  }
  return std::nullopt;
}

std::u16string_view StringList::Value(std::u16string_view name) const {
  const auto index = IndexOfName(name);
  return index ? ValueOf(lines_[*index]) : std::u16string_view();
}

void StringList::SetValue(std::u16string_view name, std::u16string_view value) {
  const auto index = IndexOfName(name);
  if (value.empty()) {
    if (index) lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*index));
    return;
  }
  std::u16string line(name);
  line.append(u"=").append(value);
  if (index) {
    lines_[*index] = std::move(line);
  } else {
    lines_.push_back(std::move(line));
  }
}

}  // namespace ravo

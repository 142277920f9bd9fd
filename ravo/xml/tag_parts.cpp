#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>
#include <ravo/xml/tag_parts.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <unordered_map>

namespace ravo::xml {
namespace {

constexpr auto kInName = [] {
  std::array<bool, 256> in_name{};
  for (std::size_t i = 0x21; i < in_name.size(); ++i) in_name[i] = true;
  for (const char ch : std::string_view("\"&<>=/'")) in_name[static_cast<unsigned char>(ch)] = false;
  return in_name;
}();

const char* EndOfName(const char* at, const char* end) noexcept {
  while (at != end && kInName[static_cast<unsigned char>(*at)]) ++at;
  return at;
}

// Compares a few bytes of names before all of them; a tag with too many attributes is no plain one.
class NameKeys {
 public:
  [[nodiscard]] bool Add(const char* begin, const char* end) noexcept {
    const std::uint32_t key = static_cast<std::uint32_t>(end - begin) << 16 |
                              std::uint32_t{static_cast<unsigned char>(LowerByte(*begin))} << 8 |
                              std::uint32_t{static_cast<unsigned char>(LowerByte(end[-1]))};
    for (std::size_t i = 0; i < count_; ++i) {
      if (keys_[i] == key &&
          std::ranges::equal(begin, end, names_[i], names_[i] + (end - begin), {}, LowerByte, LowerByte)) {
        return false;
      }
    }
    if (count_ == keys_.size()) return false;
    names_[count_] = begin;
    keys_[count_++] = key;
    return true;
  }

 private:
  std::array<std::uint32_t, 24> keys_;
  std::array<const char*, 24> names_;
  std::size_t count_ = 0;
};

// The end of `name="value"`; null if the text at `at` is anything else.
const char* EndOfAttribute(const char* at, const char* end, NameKeys& names) noexcept {
  const char* const name = at;
  at = EndOfName(at, end);
  if (at == name || end - at < 4 || at[0] != '=' || at[1] != '"' || !names.Add(name, at)) return nullptr;
  const char* const value = at + 2;
  at = EndOfPlainText(value, end);
  return at != end && at != value && *at == '"' ? at + 1 : nullptr;
}

std::string_view NameOfTag(std::string_view tag) {
  tag.remove_prefix(1);
  const std::size_t blank = tag.find(' ');
  const std::size_t end = blank != std::string_view::npos ? blank : tag.find('/');
  return TrimmedBytes(end != std::string_view::npos ? tag.substr(0, end) : tag.substr(0, tag.size() - 1));
}

// The part between the first blank and the end of the tag.
std::string_view AttributesOfTag(std::string_view tag) {
  const std::size_t blank = tag.find(' ');
  if (blank == std::string_view::npos) return {};
  std::size_t end = tag.find('>');
  if (tag[end - 1] == '/') --end;
  return end > blank ? tag.substr(blank + 1, end - blank - 1) : std::string_view();
}

// Kept: blanks between single quotes end an attribute; only double quotes protect them. Test:
// LoadFromStream.BlanksBetweenSingleQuotesEndAnAttribute
std::string WithBreaksForBlanks(std::string_view attributes) {
  std::string text;
  bool in_quotes = false;
  for (std::size_t i = 0; i < attributes.size(); ++i) {
    const bool last = i + 1 == attributes.size();
    if (!last && attributes[i] == '"') in_quotes = !in_quotes;
    if (!last && attributes[i] == ' ' && !in_quotes) {
      text += "\r\n";
    } else {
      text += attributes[i];
    }
  }
  return text;
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
  }
  return lines;
}

// Kept: a value of two characters keeps its quotes: an empty value is read as its two quotes. Test:
// LoadFromStream.AnEmptyValueKeepsItsQuotes
std::string ValueOf(std::string_view written) {
  constexpr std::size_t kShortestQuoted = 3;
  std::string_view value = TrimmedBytes(written);
  const auto is_quote = [](char ch) { return ch == '"' || ch == '\''; };
  if (value.size() >= kShortestQuoted) {
    if (is_quote(value.front())) value.remove_prefix(1);
    if (is_quote(value.back())) value.remove_suffix(1);
  }
  return Unescaped(value);
}

std::string Folded(std::string_view name) {
  std::string folded(name);
  std::ranges::transform(folded, folded.begin(), LowerByte);
  return folded;
}

// Lines that are read and set by name: the first line of a name that is left.
class NamedLines {
 public:
  explicit NamedLines(std::vector<std::string> lines) : lines_(lines.begin(), lines.end()) {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const std::size_t equals = lines_[i]->find('=');
      if (equals != std::string::npos) by_name_[Folded(lines_[i]->substr(0, equals))].places.push_back(i);
    }
  }

  // Kept: the values of a repeated attribute go to its first occurrence, where the last one stays; the others
  // keep theirs as written, with quotes. Test: LoadFromStream.ValuesOfARepeatedAttributeLandInTheFirst
  std::vector<std::string> WithValues() {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (!lines_[i]) continue;
      const std::size_t equals = lines_[i]->find('=');
      const bool named = equals != std::string::npos;
      const std::string name = named ? lines_[i]->substr(0, equals) : std::string();
      Store(name, named ? ValueOf(std::string_view(*lines_[i]).substr(equals + 1)) : std::string());
    }
    std::vector<std::string> left;
    for (auto& line : lines_) {
      if (line) left.push_back(std::move(*line));
    }
    return left;
  }

 private:
  struct Places {
    std::vector<std::size_t> places;
    std::size_t gone = 0;
  };

  // An empty value deletes the line, as in `StringList`.
  void Store(const std::string& name, const std::string& value) {
    const auto found = by_name_.find(Folded(name));
    if (found == by_name_.end() || found->second.gone == found->second.places.size()) return;
    std::optional<std::string>& line = lines_[found->second.places[found->second.gone]];
    if (value.empty()) {
      line.reset();
      ++found->second.gone;
    } else {
      line = name + "=" + value;
    }
  }

  std::vector<std::optional<std::string>> lines_;
  std::unordered_map<std::string, Places> by_name_;
};

}  // namespace

bool TakePlainBody(std::string_view tag, TagBody& body) noexcept {
  const char* const begin = tag.data() + 1;
  const char* end = tag.data() + tag.size() - 1;
  if (end != begin && end[-1] == '/') --end;
  const char* at = EndOfName(begin, end);
  if (at == begin) return false;
  body.name_size = static_cast<std::size_t>(at - begin);
  const char* end_of_body = at;
  NameKeys names;
  while (at != end) {
    if (*at++ != ' ') return false;
    if (at == end) break;
    at = EndOfAttribute(at, end, names);
    if (at == nullptr) return false;
    end_of_body = at;
  }
  body.bytes = {begin, static_cast<std::size_t>(end_of_body - begin)};
  return true;
}

TagParts ReadTag(std::string_view tag) {
  std::string text(tag);
  Normalise(text);
  return {std::string(NameOfTag(text)),
          NamedLines(Lines(WithBreaksForBlanks(AttributesOfTag(text)))).WithValues()};
}

StringList ListOf(const std::vector<std::string>& lines, const CodePage& page) {
  StringList list;
  for (const std::string& line : lines) list.Add(page.Widened(line));
  return list;
}

bool AppendLines(std::string& body, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) return false;
    body.append(" ").append(line, 0, equals).append("=\"");
    body.append(Escaped(std::string_view(line).substr(equals + 1))).append("\"");
  }
  return true;
}

WrittenAttribute TakeAttribute(std::string_view& rest) noexcept {
  const std::size_t equals = rest.find('=');
  const std::size_t end = rest.find('"', equals + 2);
  const WrittenAttribute attribute{rest.substr(1, equals - 1), rest.substr(equals + 2, end - equals - 2)};
  rest.remove_prefix(end + 1);
  return attribute;
}

}  // namespace ravo::xml

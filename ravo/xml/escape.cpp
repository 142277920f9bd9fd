#include <ravo/xml/byte_scan.h>
#include <ravo/xml/escape.h>

#include <algorithm>
#include <array>

namespace ravo {
namespace {

struct Entity {
  std::string_view name;
  char meaning;
};

constexpr std::array<Entity, 4> kEntities = {{{"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&amp;", '&'}}};
constexpr std::string_view kLineBreak = "<br/>";
constexpr std::string_view kAmpersandTail = "amp;";

template <class Char>
bool StartsWith(std::basic_string_view<Char> text, std::string_view ascii) {
  return text.size() >= ascii.size() && std::equal(ascii.begin(), ascii.end(), text.begin());
}

template <class Char>
const Entity* EntityAt(std::basic_string_view<Char> text) {
  const auto found =
      std::ranges::find_if(kEntities, [&](const Entity& entity) { return StartsWith(text, entity.name); });
  return found != kEntities.end() ? &*found : nullptr;
}

template <class Char>
void AppendAscii(std::basic_string<Char>& to, std::string_view ascii) {
  to.append(ascii.begin(), ascii.end());
}

// No replacement makes or breaks another one: one pass gives the same as one pass for each of them.
template <class Char>
std::basic_string<Char> Escape(std::basic_string_view<Char> text) {
  std::basic_string<Char> out;
  out.reserve(text.size() + text.size() / 8);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const Char ch = text[at];
    const auto entity = std::ranges::find(kEntities, ch, [](const Entity& row) { return Char(row.meaning); });
    if (entity != kEntities.end()) {
      AppendAscii(out, entity->name);
    } else if (ch == '\r' && at + 1 < text.size() && text[at + 1] == '\n') {
      AppendAscii(out, kLineBreak);
      ++at;
    } else {
      out += ch;
    }
  }
  return out;
}

// Kept: the line-break marker "<br/>" is not read back: its five characters stay in the text. Test:
// XMLToStr.LeavesTheLineBreakMarker
template <class Char>
std::basic_string<Char> Unescape(std::basic_string_view<Char> text, bool with_breaks) {
  std::basic_string<Char> out;
  out.reserve(text.size());
  while (!text.empty()) {
    const Entity* entity = text.front() == '&' ? EntityAt(text) : nullptr;
    if (entity != nullptr) {
      out += Char(entity->meaning);
      text.remove_prefix(entity->name.size());
    } else if (with_breaks && StartsWith(text, kLineBreak)) {
      AppendAscii(out, "\r\n");
      text.remove_prefix(kLineBreak.size());
    } else {
      out += text.front();
      text.remove_prefix(1);
    }
  }
  return out;
}

// The number of times that "amp;" repeats at the front.
std::size_t CountAmpersandTails(std::string_view text, std::size_t most) {
  std::size_t count = 0;
  while (count < most && text.substr(count * kAmpersandTail.size()).starts_with(kAmpersandTail)) ++count;
  return count;
}

}  // namespace

namespace ECXMLParser {

std::u16string StrToXML(std::u16string_view S) { return Escape(S); }
std::u16string XMLToStr(std::u16string_view S) { return Unescape(S, false); }

}  // namespace ECXMLParser

namespace xml {

std::string Escaped(std::string_view text) { return Escape(text); }
std::string Unescaped(std::string_view text) { return Unescape(text, false); }
std::string Unsaved(std::string_view saved) { return Unescape(saved, true); }

bool NeedsEscape(std::string_view text) noexcept {
  return std::ranges::any_of(
      text, [](char ch) { return ch == '&' || ch == '<' || ch == '>' || ch == '"' || ch == '\r'; });
}

const char* EndOfPlainText(const char* at, const char* end) noexcept {
  for (;;) {
    at = EndOfOrdinary(at, end);
    if (at == end || *at != '&') return at;
    const Entity* entity = EntityAt(std::string_view(at, static_cast<std::size_t>(end - at)));
    if (entity == nullptr) return at;
    at += entity->name.size();
  }
}

// Each application removes one "amp;" after an "&", until the rest is another entity.
std::string Unescaped(std::string_view text, std::size_t times) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const char ch = text.front();
    text.remove_prefix(1);
    if (ch != '&' || times == 0) {
      out += ch;
      continue;
    }
    const std::size_t tails = CountAmpersandTails(text, times);
    text.remove_prefix(tails * kAmpersandTail.size());
    std::string ahead = "&" + std::string(text.substr(0, 5));
    const Entity* entity = tails < times ? EntityAt(std::string_view(ahead)) : nullptr;
    out += entity != nullptr ? entity->meaning : ch;
    if (entity != nullptr) text.remove_prefix(entity->name.size() - 1);
  }
  return out;
}

}  // namespace xml
}  // namespace ravo

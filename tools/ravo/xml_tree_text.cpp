#include "xml_tree_text.h"

#include <ravo/RavoInterface.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace tool {
namespace {

using ravo::ECXMLParser::TXMLItem;

class Painter {
 public:
  explicit Painter(bool colours) : colours_(colours) {}
  [[nodiscard]] std::string Name(const std::string& text) const { return Painted(text, "1;34"); }
  [[nodiscard]] std::string Attribute(const std::string& text) const { return Painted(text, "36"); }
  [[nodiscard]] std::string Value(const std::string& text) const { return Painted(text, "32"); }

 private:
  [[nodiscard]] std::string Painted(const std::string& text, const char* code) const {
    return colours_ ? std::string("\x1b[") + code + "m" + text + "\x1b[0m" : text;
  }

  bool colours_;
};

std::string ItemLine(const TXMLItem& item, const XmlWords& words, const Painter& painter) {
  const auto shown = [&](std::u16string_view text) { return OnOneLine(words.Shown(text)); };
  std::string line = painter.Name(item.Name().empty() ? "(no name)" : shown(item.Name()));
  const ravo::StringList params = item.Params();
  for (std::size_t i = 0; i < params.Count(); ++i) {
    line += " " + painter.Attribute(shown(params.NameAt(i))) + "=" +
            painter.Value("\"" + shown(params.ValueAt(i)) + "\"");
  }
  const std::string text = shown(ravo::Trimmed(item.Text()));
  return text.empty() ? line : line + ": " + text;
}

// Characters that a terminal may take for a command: the control characters of ASCII, and U+0080 to U+009F,
// in UTF-8 C2 80 to C2 9F.
bool IsControl(const std::string& utf8, std::size_t at) {
  const auto byte = static_cast<unsigned char>(utf8[at]);
  if (byte < 0x20 || byte == 0x7F) return true;
  return byte == 0xC2 && at + 1 < utf8.size() && static_cast<unsigned char>(utf8[at + 1]) < 0xA0;
}

}  // namespace

std::string OnOneLine(std::string utf8) {
  std::size_t to = 0;
  for (std::size_t at = 0; at < utf8.size(); ++at) {
    const bool control = IsControl(utf8, at);
    if (control && (utf8[at] == '\xC2' || (utf8[at] == '\r' && utf8[at + 1] == '\n'))) ++at;
    utf8[to++] = control ? ' ' : utf8[at];
  }
  utf8.resize(to);
  return utf8;
}

// With a stack of its own, since documents may be deep; indents stop growing at kDeepest.
std::string XmlTreeText(const TXMLItem& root, const XmlWords& words, bool colours) {
  constexpr std::size_t kDeepest = 50;
  const Painter painter(colours);
  std::string text;
  std::vector<std::pair<const TXMLItem*, std::int32_t>> levels = {{&root, -1}};
  while (!levels.empty()) {
    auto& [item, next] = levels.back();
    if (next < 0) {
      const std::size_t depth = std::min(levels.size() - 1, kDeepest);
      text += std::string(depth * 2, ' ') + ItemLine(*item, words, painter) + "\n";
      next = 0;
    }
    if (next == item->SubItemCount()) {
      levels.pop_back();
    } else {
      const TXMLItem* const child = item->SubItems(next++);
      levels.emplace_back(child, -1);
    }
  }
  return text;
}

}  // namespace tool

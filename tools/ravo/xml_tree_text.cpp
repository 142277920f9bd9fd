#include "xml_tree_text.h"

#include "text.h"

#include <algorithm>

namespace tool {
namespace {

std::string Stripped(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? std::string()
                                    : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

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

std::string ElementLine(const ReadElement& element, const Painter& painter) {
  std::string line = painter.Name(element.name.empty() ? Text("(no name)") : OnOneLine(element.name));
  for (const auto& [name, value] : element.attributes) {
    line += " " + painter.Attribute(OnOneLine(name)) + "=" + painter.Value("\"" + OnOneLine(value) + "\"");
  }
  const std::string text = Stripped(OnOneLine(element.text));
  return text.empty() ? line : line + ": " + text;
}

// Control characters, which a terminal may obey: those of ASCII, and U+0080 to U+009F, which are C2 80 to C2
// 9F in UTF-8.
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

// Indents stop growing where they would no longer help.
std::string XmlElementLine(const ReadElement& element, bool colours) {
  constexpr std::size_t kDeepest = 50;
  return std::string(std::min(element.depth, kDeepest) * 2, ' ') + ElementLine(element, Painter(colours)) +
         "\n";
}

}  // namespace tool

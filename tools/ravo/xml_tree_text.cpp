#include "xml_tree_text.h"

#include "printable.h"
#include "text.h"

#include <algorithm>

namespace tool {
namespace {

using ravo::document::ReadElement;

// Tabs and line ends of a text are layout: each is a blank, and none is left at the edges.
std::string WithoutLayout(std::string_view text) {
  std::string line;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.substr(at, 2) == "\r\n") continue;
    line += text[at] == '\t' || text[at] == '\n' ? ' ' : text[at];
  }
  const std::size_t begin = line.find_first_not_of(' ');
  return begin == std::string::npos ? std::string()
                                    : line.substr(begin, line.find_last_not_of(' ') + 1 - begin);
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
  const std::string text = OnOneLine(WithoutLayout(element.text));
  return text.empty() ? line : line + ": " + text;
}

}  // namespace

// Indents stop growing where they would no longer help.
std::string XmlElementLine(const ReadElement& element, bool colours) {
  constexpr std::size_t kDeepest = 50;
  return std::string(std::min(element.depth, kDeepest) * 2, ' ') + ElementLine(element, Painter(colours)) +
         "\n";
}

}  // namespace tool

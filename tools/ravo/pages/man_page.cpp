#include "pages.h"
#include "program_help.h"
#include "text.h"
#include <ravo/DIUnicode.h>
#include <ravo/RavoInterface.h>

#include <sstream>

namespace pages {
namespace {

using tool::Text;

// Escapes text for groff: a hyphen stays a typed hyphen, and a line that begins with a dot is not a macro.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char character : text) {
    const bool at_start = escaped.empty() || escaped.back() == '\n';
    if (at_start && (character == '.' || character == '\'')) escaped += "\\&";
    if (character == '\\')
      escaped += "\\e";
    else if (character == '-')
      escaped += "\\-";
    else
      escaped += character;
  }
  return escaped;
}

std::string Quoted(std::string_view text) {
  std::string quoted;
  for (const char character : Escaped(text)) quoted += character == '"' ? "\\(dq" : std::string(1, character);
  return "\"" + quoted + "\"";
}

// Titles in capitals, as manual pages have them.
std::string Upper(const std::string& text) {
  std::u16string units = ravo::FromUtf8(text);
  for (char16_t& unit : units) unit = ravo::DIUnicode::CharToUpperW(unit);
  return ravo::ToUtf8(units);
}

std::vector<std::string> Paragraphs(const std::string& text) {
  std::vector<std::string> paragraphs(1);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty())
      paragraphs.back() += line + "\n";
    else if (!paragraphs.back().empty())
      paragraphs.emplace_back();
  }
  if (paragraphs.back().empty()) paragraphs.pop_back();
  return paragraphs;
}

// Help aligns its lists with spaces below a heading; they stay as they are.
std::string Footer(const CLI::App& app) {
  std::string text;
  for (const std::string& paragraph : Paragraphs(app.get_footer())) {
    const bool laid_out = paragraph.find("\n  ") != std::string::npos;
    text += laid_out ? ".PP\n.nf\n" + Escaped(paragraph) + ".fi\n" : ".PP\n" + Escaped(paragraph);
  }
  return text;
}

std::string Options(const CLI::App& app) {
  std::string text;
  for (const CLI::Option* option : app.get_options()) {
    if (option->get_group().empty()) continue;
    text += ".TP\n\\fB" + Escaped(tool::OptionTitle(*option)) + "\\fR\n" +
            Escaped(option->get_description()) + "\n";
  }
  return text;
}

std::string Section(const Command& command) {
  const std::string name = "ravo " + command.words;
  return ".SS " + Quoted(name) + "\n" + Escaped(command.app->get_description()) + ".\n.PP\n\\fB" +
         Escaped(tool::UsageLine(*command.app, name)) + "\\fR\n" + Options(*command.app) +
         Footer(*command.app);
}

// Nested commands are listed in the theme of their parent.
std::string CommandsByTheme(const CLI::App& program) {
  std::string text, theme;
  for (const Command& command : Commands(program)) {
    const std::string& group = command.app->get_group();
    const bool at_top = command.words == command.app->get_name();
    if (at_top && group != theme) text += ".SH " + Quoted(theme = group) + "\n";
    text += Section(command);
  }
  return text;
}

std::string Heading(const std::string& title) { return ".SH " + Quoted(title) + "\n"; }

// Each paragraph of the program's footer begins with its title, as in "Exit status: ...".
std::string NoteSections(const CLI::App& program) {
  std::string text;
  for (const std::string& paragraph : Paragraphs(program.get_footer())) {
    const auto colon = paragraph.find(':');
    const std::string rest = paragraph.substr(paragraph.find_first_not_of(": \n", colon));
    const bool laid_out = paragraph[colon + 1] == '\n';
    const std::string body = laid_out ? ".nf\n  " + Escaped(rest) + ".fi\n" : Escaped(rest);
    text += Heading(Upper(paragraph.substr(0, colon))) + body;
  }
  return text;
}

}  // namespace

std::string ManPage(const CLI::App& program, std::string_view version) {
  const std::string& name = program.get_name();
  return ".\\\" Made from the definitions of the commands; do not edit.\n.TH RAVO 1 \"\" " +
         Quoted("RavoInterface " + std::string(version)) + " " + Quoted(Text("User Commands")) + "\n" +
         Heading(Text("NAME")) + name + " \\- " + Escaped(program.get_description()) + "\n" +
         Heading(Text("SYNOPSIS")) + "\\fB" + Escaped(tool::UsageLine(program, name)) + "\\fR\n" +
         Heading(Text("OPTIONS")) + Options(program) + CommandsByTheme(program) + NoteSections(program) +
         Heading(Text("SEE ALSO")) + "iconv(1), sort(1), cksum(1), xmllint(1), locale(7)\n";
}

}  // namespace pages

#include "pages.h"

#include <sstream>

namespace pages {
namespace {

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
  const CLI::Formatter formatter;
  std::string text;
  for (const CLI::Option* option : app.get_options()) {
    if (option->get_group().empty()) continue;
    const bool positional = option->get_positional();
    text += ".TP\n\\fB" + Escaped(formatter.make_option_name(option, positional)) + "\\fR" +
            Escaped(formatter.make_option_opts(option)) + "\n" + Escaped(option->get_description()) + "\n";
  }
  return text;
}

std::string Usage(const CLI::App& app, const std::string& name) {
  const std::string line = CLI::Formatter().make_usage(&app, name);
  const auto begin = line.find(' ') + 1;
  return line.substr(begin, line.find('\n') - begin);
}

std::string Section(const Command& command) {
  const std::string name = "ravo " + command.words;
  return ".SS " + Quoted(name) + "\n" + Escaped(command.app->get_description()) + ".\n.PP\n\\fB" +
         Escaped(Usage(*command.app, name)) + "\\fR\n" + Options(*command.app) + Footer(*command.app);
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

}  // namespace

std::string ManPage(const CLI::App& program, std::string_view version) {
  const std::string& name = program.get_name();
  return ".\\\" Made from the definitions of the commands; do not edit.\n.TH RAVO 1 \"\" " +
         Quoted("RavoInterface " + std::string(version)) + " " + Quoted("User Commands") + "\n.SH NAME\n" +
         name + " \\- " + Escaped(program.get_description()) + "\n.SH SYNOPSIS\n\\fB" +
         Escaped(Usage(program, name)) + "\\fR\n.SH OPTIONS\n" + Options(program) + CommandsByTheme(program) +
         ".SH NOTES\n" + Footer(program);
}

}  // namespace pages

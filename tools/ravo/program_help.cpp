#include "program_help.h"

#include "columns.h"
#include "text.h"

#include <set>
#include <utility>

namespace tool {
namespace {

constexpr std::size_t kHelpColumn = 30;

// A description starts in its column; below a name that reaches into it, in a line of its own.
std::string HelpRow(const std::string& name, const std::string& description) {
  const std::string indented = "  " + name;
  if (description.empty()) return indented + "\n";
  const std::string margin(kHelpColumn, ' ');
  const bool fits = Width(indented) < kHelpColumn;
  std::string row = fits ? Padded(indented, kHelpColumn) : indented + "\n" + margin;
  for (const char letter : description) row += letter == '\n' ? "\n" + margin : std::string(1, letter);
  return row + "\n";
}

// The parser calls types "TEXT:{up,down}" or "INT:INT in [-4 - 14]"; people need the values alone.
std::string ValueTitle(const CLI::Option& option, const CLI::Formatter& labels) {
  const std::string type = option.get_type_name();
  const auto colon = type.find(':');
  if (option.get_positional()) return "";
  if (colon == std::string::npos) return labels.get_label(type);
  std::string rule = type.substr(colon + 1);
  if (rule.starts_with('{')) return rule;
  return type.starts_with("TEXT:") ? rule : labels.get_label(type.substr(0, colon));
}

std::string NamesOf(const std::set<CLI::Option*>& options) {
  std::string names;
  for (const CLI::Option* option : options) names += " " + option->get_name();
  return names;
}

class Layout : public CLI::Formatter {
 public:
  Layout() {
    column_width(kHelpColumn);
    label("Usage", Text("Usage"));
    label("OPTIONS", Text("OPTIONS"));
    label("SUBCOMMAND", Text("COMMAND"));
    label("Positionals", Text("Arguments"));
    label("Options", Text("Options"));
    label("REQUIRED", Text("(required)"));
    label("Needs", Text("Needs"));
    label("Excludes", Text("Not with"));
    label("TEXT", Text("TEXT"));
    label("INT", Text("NUMBER"));
    label("UINT", Text("NUMBER"));
    label("FLOAT", Text("NUMBER"));
  }

  std::string make_group(std::string group, bool is_positional,
                         std::vector<const CLI::Option*> options) const override {
    return CLI::Formatter::make_group(get_label(group), is_positional, std::move(options));
  }
  // "[DATE [DATE]]" for up to two; the parser's own counts only the least.
  std::string make_option_usage(const CLI::Option* option) const override {
    const std::string name = make_option_name(option, true);
    const int most = option->get_expected_max();
    std::string usage = name;
    if (most >= CLI::detail::expected_max_vector_size) usage += "...";
    if (most == 2) usage += " [" + name + "]";
    return option->get_required() ? usage : "[" + usage + "]";
  }
  std::string make_option(const CLI::Option* option, bool is_positional) const override {
    return HelpRow(make_option_name(option, is_positional) + make_option_opts(option),
                   make_option_desc(option));
  }
  std::string make_subcommand(const CLI::App* command) const override {
    return HelpRow(command->get_display_name(true), command->get_description());
  }
  std::string make_option_opts(const CLI::Option* option) const override {
    if (option->get_type_size() == 0) return Relations(*option);
    std::string text;
    if (const std::string values = ValueTitle(*option, *this); !values.empty()) text += " " + values;
    if (!option->get_default_str().empty()) text += "=" + option->get_default_str();
    if (option->get_expected_max() == CLI::detail::expected_max_vector_size) text += " ...";
    if (option->get_required()) text += " " + get_label("REQUIRED");
    return text + Relations(*option);
  }

 private:
  [[nodiscard]] std::string Relations(const CLI::Option& option) const {
    std::string text;
    if (!option.get_needs().empty()) text += " " + get_label("Needs") + ":" + NamesOf(option.get_needs());
    if (!option.get_excludes().empty())
      text += " " + get_label("Excludes") + ":" + NamesOf(option.get_excludes());
    return text;
  }
};

std::vector<std::string> SpellingsOf(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

Json TextOrNull(const std::string& text) { return text.empty() ? Json() : Json(text); }

bool Repeats(const CLI::Option& option) {
  return option.get_expected_max() == CLI::detail::expected_max_vector_size;
}

Json ArgumentJson(const CLI::Option& option) {
  return {{"name", option.get_name(true)},
          {"description", option.get_description()},
          {"required", option.get_required()},
          {"repeats", Repeats(option)}};
}

Json OptionJson(const CLI::Option& option, const Layout& layout) {
  const bool takes_value = option.get_type_size() != 0;
  return {{"names", SpellingsOf(option)},
          {"value", takes_value ? TextOrNull(ValueTitle(option, layout)) : Json()},
          {"default", TextOrNull(option.get_default_str())},
          {"description", option.get_description()},
          {"required", option.get_required()},
          {"repeats", Repeats(option)}};
}

Json CommandsJson(const CLI::App& app) {
  Json commands = Json::array();
  for (const CLI::App* command : app.get_subcommands({}))
    commands.push_back({{"name", command->get_name()}, {"description", command->get_description()}});
  return commands;
}

}  // namespace

std::shared_ptr<CLI::Formatter> HelpLayout() { return std::make_shared<Layout>(); }

std::string OptionTitle(const CLI::Option& option) {
  const Layout layout;
  return layout.make_option_name(&option, option.get_positional()) + layout.make_option_opts(&option);
}

std::string HelpText(const CLI::App& app, const std::string& name) {
  // A group of hidden options leaves an empty line.
  const std::string text = Layout().make_help(&app, name, CLI::AppFormatMode::Normal);
  return CLI::detail::find_and_replace(text, "\n\n\n", "\n\n");
}

Json HelpJson(const CLI::App& app, const std::string& name) {
  const Layout layout;
  Json arguments = Json::array();
  Json options = Json::array();
  for (const CLI::Option* option : app.get_options()) {
    if (option->get_positional()) arguments.push_back(ArgumentJson(*option));
    if (option->nonpositional() && !option->get_group().empty())
      options.push_back(OptionJson(*option, layout));
  }
  return {{"command", name},
          {"description", app.get_description()},
          {"usage", UsageLine(app, name)},
          {"arguments", arguments},
          {"options", options},
          {"commands", CommandsJson(app)},
          {"notes", app.get_footer()}};
}

std::string UsageLine(const CLI::App& app, const std::string& name) {
  const std::string line = Layout().make_usage(&app, name);
  const auto begin = line.find(' ') + 1;
  return line.substr(begin, line.find('\n') - begin);
}

const CLI::App* CommandNamed(const CLI::App& app, std::string_view name) {
  for (const CLI::App* command : app.get_subcommands({}))
    if (command->get_name() == name) return command;
  return nullptr;
}

std::vector<std::string> CommandNames(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* command : app.get_subcommands({}))
    if (!command->get_group().empty()) names.push_back(command->get_name());
  return names;
}

}  // namespace tool

#pragma once

#include "json_text.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

namespace tool {

/// Returns the layout of help texts: the parser's, in the user's language, with columns by the width of
/// characters.
[[nodiscard]] std::shared_ptr<CLI::Formatter> HelpLayout();

/// Returns the name of an option or argument with the values it takes ("--mode {up,down}").
[[nodiscard]] std::string OptionTitle(const CLI::Option& option);

/// Returns the help of a command; `name` is the words that call it.
[[nodiscard]] std::string HelpText(const CLI::App& app, const std::string& name);

/// Returns the same as JSON.
[[nodiscard]] Json HelpJson(const CLI::App& app, const std::string& name);

/// Returns the usage of a command: the words that call it, and the arguments.
[[nodiscard]] std::string UsageLine(const CLI::App& app, const std::string& name);

/// Returns the sub-command of this name, or null.
[[nodiscard]] const CLI::App* CommandNamed(const CLI::App& app, std::string_view name);

/// Returns the names of the sub-commands that help shows.
[[nodiscard]] std::vector<std::string> CommandNames(const CLI::App& app);

}  // namespace tool

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Returns the value of a variable in a file of shell assignments (os-release, user-dirs.dirs): that of its
/// last line NAME=value, quotes and backslashes removed; "$" stays as it is. No value if there is no such
/// line.
[[nodiscard]] std::optional<std::string> ShellAssignment(std::string_view text, std::string_view name);

}  // namespace ravo::platform::posix

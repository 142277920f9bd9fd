#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// The value that a file of shell assignments (os-release, user-dirs.dirs) gives a variable in its last line
/// NAME=value, quotes and backslashes taken off; "$" stays as it is. No value where there is no such line.
[[nodiscard]] std::optional<std::string> ShellAssignment(std::string_view text, std::string_view name);

}  // namespace ravo::platform::posix

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Returns at most the first 1 MiB of a small file of the system (/proc, /sys, /etc); no value if it cannot
/// be read.
[[nodiscard]] std::optional<std::string> ReadHostFile(const std::string& path);

/// Removes the first line from `rest` and returns it without its line feed.
[[nodiscard]] std::string_view TakeLine(std::string_view& rest);

/// Returns `bytes` without blanks, tabs and line ends at both ends.
[[nodiscard]] std::string_view TrimmedBytes(std::string_view bytes);

/// Returns a variable of the environment; empty if it is not set.
[[nodiscard]] std::string EnvironmentText(const char* name);

}  // namespace ravo::platform::posix

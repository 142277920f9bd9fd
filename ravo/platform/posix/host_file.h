#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// The bytes of one of the system's own small files (/proc, /sys, /etc), at most 1 MiB of them; no value
/// where it cannot be read.
[[nodiscard]] std::optional<std::string> ReadHostFile(const std::string& path);

/// Takes the first line off `rest`, without its line feed.
[[nodiscard]] std::string_view TakeLine(std::string_view& rest);

/// Without blanks, tabs and line feeds at both ends.
[[nodiscard]] std::string_view TrimmedBytes(std::string_view bytes);

/// A variable of the environment; empty where it is not set.
[[nodiscard]] std::string EnvironmentText(const char* name);

}  // namespace ravo::platform::posix

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Tells whether a name matches a pattern: "*" matches any text, "?" any one unit, and the pattern "*.*"
/// every name.
[[nodiscard]] bool MatchesPattern(std::u16string_view name, std::u16string_view pattern) noexcept;

/// Returns the first match of a directory search: the path itself if it exists, otherwise the first name, in
/// byte order, that matches the pattern in the path's last part. "." counts as a name. No value if there is
/// no match, or if the path ends in "/".
[[nodiscard]] std::optional<std::string> FirstFound(const std::string& path);

}  // namespace ravo::platform::posix

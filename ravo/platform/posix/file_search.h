#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Whether a name is of a pattern: "*" stands for any text, "?" for any one unit, "*.*" as a whole for every
/// name.
[[nodiscard]] bool MatchesPattern(std::u16string_view name, std::u16string_view pattern) noexcept;

/// What a directory search for a path finds first: the path itself where something has that name, else the
/// first name, in the order of their bytes, that matches the pattern in its last part; "." is such a name. No
/// value where nothing does and for a path that ends in "/".
[[nodiscard]] std::optional<std::string> FirstFound(const std::string& path);

}  // namespace ravo::platform::posix

#pragma once

#include <cstdint>
#include <string>

namespace ravo::platform::posix {

/// Tells whether a path leads to a folder, through links too.
[[nodiscard]] bool IsFolder(const std::string& path);

/// Returns the attributes that Windows would give a path: read-only if the caller may not write it, hidden
/// if its name begins with a dot.
[[nodiscard]] std::uint32_t AttributesOf(const std::string& path, bool is_folder);

}  // namespace ravo::platform::posix

#pragma once

#include <cstdint>
#include <string>

namespace ravo::platform::posix {

/// Whether a path leads to a folder, through links too.
[[nodiscard]] bool IsFolder(const std::string& path);

/// The attributes that Windows would give what stands under a path: read-only is what the caller may not
/// write, hidden what begins with a dot.
[[nodiscard]] std::uint32_t AttributesOf(const std::string& path, bool is_folder);

}  // namespace ravo::platform::posix

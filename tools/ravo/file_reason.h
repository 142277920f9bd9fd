#pragma once

#include <string>

namespace tool {

/// Returns why a file cannot be read, as the system sees it: missing, a folder, forbidden. `name` is UTF-8.
[[nodiscard]] std::string WhyUnreadable(const std::string& name);

/// Returns "NAME: cannot be read: REASON".
[[nodiscard]] std::string UnreadableMessage(const std::string& name);

}  // namespace tool

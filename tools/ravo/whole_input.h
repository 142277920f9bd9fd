#pragma once

#include <optional>
#include <string>

namespace tool {

/// Returns all bytes of a file, or of standard input for `kInputName`; no value if it cannot be read to its
/// end, and then, in `reason`, why: "cannot be read: there is no such file". `name` is UTF-8.
[[nodiscard]] std::optional<std::string> ReadWhole(const std::string& name, std::string* reason = nullptr);

}  // namespace tool

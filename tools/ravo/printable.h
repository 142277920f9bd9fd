#pragma once

#include <string>
#include <string_view>

namespace tool {

/// Returns the text with its control characters made visible, for a terminal: "␛" for escape, "<U+202E>" for
/// marks that change the direction of writing. Tabs and line ends (LF, CR LF) stay.
[[nodiscard]] std::string Printable(std::string_view utf8);

}  // namespace tool

#pragma once

#include <string>
#include <string_view>

namespace tool {

/// Returns the text with its control characters made visible, for a terminal: "␛" for escape, "<U+202E>" for
/// marks that change the direction of writing. Tabs and line ends (LF, CR LF) stay.
[[nodiscard]] std::string Printable(std::string_view utf8);

/// Returns the same for a text that must fit one line, with tabs and line ends made visible too: "␉", "␊".
[[nodiscard]] std::string OnOneLine(std::string_view utf8);

}  // namespace tool

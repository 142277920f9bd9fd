#pragma once

#include <string>
#include <string_view>

namespace tool {

/// Writes a whole file, bytes as they stand; `name` is UTF-8. A reader sees the old file or the new one,
/// never a piece: the text goes into a file beside it that then takes its name. What is there and is no
/// ordinary file (a device, a pipe) is written to directly. Gives an empty text, or why it failed.
[[nodiscard]] std::string WriteTextFile(const std::string& name, std::string_view bytes);

}  // namespace tool

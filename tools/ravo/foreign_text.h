#pragma once

#include <string>
#include <string_view>

namespace tool {

/// Returns the text of a foreign file in UTF-8: bytes that are UTF-8 unchanged, any others decoded from
/// Windows-1250, the suite's 8-bit code page.
[[nodiscard]] std::string ForeignText(std::string_view bytes);

}  // namespace tool

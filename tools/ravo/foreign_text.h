#pragma once

#include <string>
#include <string_view>

namespace tool {

/// Text of a foreign file as UTF-8: bytes that are UTF-8 already as they stand, any others as the suite's
/// 8-bit code page (Windows-1250).
[[nodiscard]] std::string ForeignText(std::string_view bytes);

}  // namespace tool

#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace ravo::DIUtils {

/// Returns a UTF-16 buffer in the system's 8-bit code page. The system replaces characters that the page
/// lacks, by "?" as a last resort. A null pointer is an empty buffer.
[[nodiscard]] RAVO_API std::string WBufToAStr(const char16_t* buffer, std::size_t length);
/// Returns a UTF-16 text in the system's 8-bit code page.
[[nodiscard]] RAVO_API std::string WStrToAStr(std::u16string_view text);

}  // namespace ravo::DIUtils

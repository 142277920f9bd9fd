#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace ravo::DIUtils {

/// UTF-16 text in the system's 8-bit code page; a character that it lacks becomes what the system puts in its
/// place, "?" at the latest. A null pointer is an empty buffer.
[[nodiscard]] RAVO_API std::string WBufToAStr(const char16_t* buffer, std::size_t length);
/// The same for a text.
[[nodiscard]] RAVO_API std::string WStrToAStr(std::u16string_view text);

}  // namespace ravo::DIUtils

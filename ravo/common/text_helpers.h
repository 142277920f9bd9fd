#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Returns the 1-based position of the `n`-th `ch` in `text`; 0 if there are fewer, and for `n` below 1.
///
/// CharPosition(u"a;b;c", u';', 2) is 4.
[[nodiscard]] RAVO_API std::int32_t CharPosition(std::u16string_view text, char16_t ch, std::int32_t n);

/// Sends a text to an attached debugger; does nothing without one.
RAVO_API void DebugStr(std::u16string_view text);

}  // namespace ravo::RavoInterfaceCommon

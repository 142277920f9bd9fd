#pragma once

#include <ravo/runtime/export.h>

#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Sends a text to an attached debugger; does nothing if there is no debugger.
RAVO_API void DebugStr(std::u16string_view text);

}  // namespace ravo::RavoInterfaceCommon

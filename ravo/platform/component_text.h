#pragma once

#include <ravo/runtime/component.h>

#include <string>

namespace ravo::platform {

/// The library's own words for a code of the component runtime, where the system has none; the number for a
/// code that it does not know.
[[nodiscard]] std::u16string ComponentText(ResultCode code);

}  // namespace ravo::platform

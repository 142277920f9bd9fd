#pragma once

#include <ravo/runtime/component.h>

#include <string>

namespace ravo::platform {

/// Returns the library's own message for a code of the component runtime, for systems that have none; the
/// number for an unknown code.
[[nodiscard]] std::u16string ComponentText(ResultCode code);

}  // namespace ravo::platform

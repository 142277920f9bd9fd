#pragma once

#include <ravo/czech/reason.h>

namespace tool {

/// Returns the language in which the room of Czech checks answers the user.
[[nodiscard]] ravo::czech::Language UserLanguage();

}  // namespace tool

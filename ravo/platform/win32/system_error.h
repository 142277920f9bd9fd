#pragma once

#include <cstdint>
#include <string>

namespace ravo::platform {

/// The system's own words for one of its error codes, in the user's language and without a line end; the
/// number where the system has none.
[[nodiscard]] std::u16string SystemErrorText(std::uint32_t code);

}  // namespace ravo::platform

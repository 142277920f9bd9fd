#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ravo::platform {

/// Returns the system's message for one of its error codes, in the user's language and without a line end;
/// no value if it has none.
[[nodiscard]] std::optional<std::u16string> KnownSystemErrorText(std::uint32_t code);

/// Returns the same, or the number if the system has no message.
[[nodiscard]] std::u16string SystemErrorText(std::uint32_t code);

}  // namespace ravo::platform

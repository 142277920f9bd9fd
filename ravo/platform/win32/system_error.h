#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ravo::platform {

/// The system's own words for one of its error codes, in the user's language and without a line end; no value
/// where it has none.
[[nodiscard]] std::optional<std::u16string> KnownSystemErrorText(std::uint32_t code);

/// As `KnownSystemErrorText`; the number where the system has no words.
[[nodiscard]] std::u16string SystemErrorText(std::uint32_t code);

}  // namespace ravo::platform

#pragma once

#include <ravo/RavoInterfaceCommon.h>

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// Returns the amount that `text` represents: an optional sign, digits, and up to four decimals after "." or
/// ",". No value for any other text and for amounts that do not fit 64 bits.
[[nodiscard]] std::optional<ravo::Currency> ParseAmount(std::string_view text);

/// Returns an amount with at least two and at most four decimals after ".".
[[nodiscard]] std::string AmountText(ravo::Currency amount);

}  // namespace tool

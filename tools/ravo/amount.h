#pragma once

#include <ravo/RavoInterfaceCommon.h>

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// Reads an amount: an optional sign, digits, and up to four decimals behind "." or ",". No value for any
/// other text and for amounts beyond 64 bits.
[[nodiscard]] std::optional<ravo::Currency> ParseAmount(std::string_view text);

/// An amount with at least two and at most four decimals behind ".".
[[nodiscard]] std::string AmountText(ravo::Currency amount);

}  // namespace tool

#pragma once

#include <ravo/runtime/decimal.h>

#include <optional>
#include <string_view>

namespace ravo {

/// Reads a whole text as `TryParseFloat` does, exactly. A decimal point further than a million places away is
/// taken as a million places away: no float is anywhere near it.
[[nodiscard]] std::optional<DecimalNumber> TryParseDecimal(std::u16string_view text,
                                                           char16_t decimal_separator);

}  // namespace ravo

#pragma once

#include <ravo/runtime/decimal.h>

#include <optional>
#include <string_view>

namespace ravo {

/// Returns the exact decimal value of a text that `TryParseFloat` accepts, or no value. A decimal point more
/// than one million places away is taken as one million places away: no float is that large or that small.
[[nodiscard]] std::optional<DecimalNumber> TryParseDecimal(std::u16string_view text,
                                                           char16_t decimal_separator);

}  // namespace ravo

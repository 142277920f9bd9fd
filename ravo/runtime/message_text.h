#pragma once

#include <ravo/runtime/currency.h>
#include <ravo/runtime/error.h>
#include <ravo/runtime/extended.h>
#include <ravo/runtime/format_settings.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace ravo {

/// An argument of a message: an integer, a text, a float or an amount.
using MessageArgument = std::variant<std::int64_t, std::u16string, Extended, Currency>;

/// Returns `format` with each placeholder replaced by the next argument, and "%%" by "%". A placeholder is
///
///     % [index :] [-] [width] [. precision] kind
///
///   d u x   an integer: signed, unsigned, upper-case hexadecimal; zero-padded to `precision` digits
///   s       a text, truncated to `precision` units
///   f n     a float or amount with `precision` decimals, 2 by default; n adds thousands separators
///   g e     the same in the general or scientific format of `precision` digits, 15 by default
///
/// Kinds are case-insensitive. The text is padded with spaces to `width`, on the left or, after "-", on the
/// right. `index` selects the next argument, counted from 0. A "*" takes index, width or precision from the
/// next argument, which must be an integer. Decimal and thousands separators come from `settings`.
///
/// Throws `ConvertError` for any other placeholder, for a missing argument or one of another kind, and for an
/// index, width or precision over 65535.
[[nodiscard]] std::u16string FormatMessageText(std::u16string_view format,
                                               std::span<const MessageArgument> arguments,
                                               const FormatSettings& settings);

}  // namespace ravo

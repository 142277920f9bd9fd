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

/// What fills a place of a message: an integer, a text, a float or an amount.
using MessageArgument = std::variant<std::int64_t, std::u16string, Extended, Currency>;

/// Returns `format` with each place filled by the next argument and "%%" as "%".
///
///     % [index :] [-] [width] [. precision] kind
///
///   d u x   an integer: signed, unsigned, hexadecimal in capitals; zeros fill it up to `precision` digits
///   s       a text; `precision` cuts it
///   f n     a float or amount with `precision` decimals, 2 without one; n separates thousands
///   g e     the same in the general or scientific format of `precision` digits, 15 without one
///
/// Kinds are of either case. Blanks fill a place up to `width`, in front or, after "-", at the end. An index
/// says which argument comes next, from 0 on. "*" takes index, width or precision from the next argument, an
/// integer. The decimal and thousands separators are those of `settings`.
///
/// Raises `ConvertError` for any other place, for one whose argument is missing or of another sort, and for
/// an index, width or precision beyond 65535.
[[nodiscard]] std::u16string FormatMessageText(std::u16string_view format,
                                               std::span<const MessageArgument> arguments,
                                               const FormatSettings& settings);

}  // namespace ravo

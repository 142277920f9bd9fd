#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>

#include <string>
#include <string_view>

/// Conversion of floats with a decimal separator of the caller's choice, independent of the locale.
namespace ravo::RavoInterfaceCommon {

/// Returns `value` in the general float format (at most 15 significant digits) with `separator` as the
/// decimal separator.
///
///     FloatToStr_(1.5, u'.')   // "1.5" in every locale
[[nodiscard]] RAVO_API std::u16string FloatToStr_(Extended value, char16_t separator);

/// Returns the float that `text` represents, with `separator` as the decimal separator.
///
/// The first `separator` is replaced by that of the locale, then the whole text must be a float; blanks at
/// both ends are allowed. Throws `ConvertError` for any other text.
[[nodiscard]] RAVO_API Extended StrToFloat_(std::u16string_view text, char16_t separator);

}  // namespace ravo::RavoInterfaceCommon

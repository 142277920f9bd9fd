#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>
#include <ravo/runtime/extended.h>

#include <string>
#include <string_view>

/// Floats in a text with a separator of one's own choice, whatever the locale says.
namespace ravo::RavoInterfaceCommon {

/// The general float format (at most 15 significant digits) with `separator` in the place of the locale's
/// decimal separator. FloatToStr_(1.5, u'.') is "1.5" everywhere.
[[nodiscard]] RAVO_API std::u16string FloatToStr_(Extended value, char16_t separator);

/// Reads what `FloatToStr_` writes: the first `separator` stands for the locale's, then the whole text must
/// be a float; blanks at both ends are allowed. Raises `ConvertError` for any other text.
[[nodiscard]] RAVO_API Extended StrToFloat_(std::u16string_view text, char16_t separator);

}  // namespace ravo::RavoInterfaceCommon

#pragma once

#include <ravo/runtime/export.h>
#include <ravo/utils/strings/char_search.h>

#include <string>
#include <string_view>

/// Characters cut off at the ends. Where none are named it is white space: bytes 0 to 32 (A), what
/// `CharIsWhiteSpaceW` says (W).
namespace ravo::DIUtils {

/// `text` without white space at both ends.
[[nodiscard]] RAVO_API std::u16string StrTrim(std::u16string_view text);
[[nodiscard]] RAVO_API std::string StrTrimA(std::string_view text);
[[nodiscard]] RAVO_API std::u16string StrTrimW(std::u16string_view text);

/// `text` without the given character at both ends.
[[nodiscard]] RAVO_API std::string StrTrimCharA(std::string_view text, char c);
/// `text` without any of the given characters at both ends.
[[nodiscard]] RAVO_API std::string StrTrimCharsA(std::string_view text, std::string_view chars);
[[nodiscard]] RAVO_API std::u16string StrTrimCharsW(std::u16string_view text, std::u16string_view chars);

/// Cuts white space off the beginning of `text` itself.
RAVO_API void TrimLeftByRefA(std::string& text);
/// `text` without white space at its end.
[[nodiscard]] RAVO_API std::string TrimRightA(std::string_view text);
/// Cuts white space off the end of `text` itself.
RAVO_API void TrimRightByRefA(std::string& text);
RAVO_API void TrimRightByRefW(std::u16string& text);

/// Characters that pass `test` (white space where that is null) go away at both ends, and inside every run of
/// them, of one character too, becomes one `replacement`. A text of nothing else becomes empty.
RAVO_API void StrTrimCompressA(std::string& text, CharTestA test = nullptr, char replacement = ' ');
RAVO_API void StrTrimCompressW(std::u16string& text, CharTestW test = nullptr, char16_t replacement = u' ');

}  // namespace ravo::DIUtils

#pragma once

#include <ravo/runtime/export.h>
#include <ravo/utils/strings/char_search.h>

#include <string>
#include <string_view>

/// Trimming. If no characters are given, it removes white space: bytes 0 to 32 (A), or `CharIsWhiteSpaceW`
/// (W).
namespace ravo::DIUtils {

/// Returns `text` without leading and trailing white space.
[[nodiscard]] RAVO_API std::u16string StrTrim(std::u16string_view text);
[[nodiscard]] RAVO_API std::string StrTrimA(std::string_view text);
[[nodiscard]] RAVO_API std::u16string StrTrimW(std::u16string_view text);

/// Returns `text` without leading and trailing `c`.
[[nodiscard]] RAVO_API std::string StrTrimCharA(std::string_view text, char c);
/// Returns `text` without any leading and trailing `chars`.
[[nodiscard]] RAVO_API std::string StrTrimCharsA(std::string_view text, std::string_view chars);
[[nodiscard]] RAVO_API std::u16string StrTrimCharsW(std::u16string_view text, std::u16string_view chars);

/// Removes leading white space from `text` in place.
RAVO_API void TrimLeftByRefA(std::string& text);
/// Returns `text` without trailing white space.
[[nodiscard]] RAVO_API std::string TrimRightA(std::string_view text);
/// Removes trailing white space from `text` in place.
RAVO_API void TrimRightByRefA(std::string& text);
RAVO_API void TrimRightByRefW(std::u16string& text);

/// Removes leading and trailing characters that pass `test` (white space if `test` is null), and replaces
/// each run of them inside the text, also of one character, by one `replacement`. A text of only such
/// characters becomes empty.
RAVO_API void StrTrimCompressA(std::string& text, CharTestA test = nullptr, char replacement = ' ');
RAVO_API void StrTrimCompressW(std::u16string& text, CharTestW test = nullptr, char16_t replacement = u' ');

}  // namespace ravo::DIUtils

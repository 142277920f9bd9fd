#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Upper, lower and proper case, character by character: ASCII letters in 8-bit text, `CharToUpperW` and
/// `CharToLowerW` in UTF-16. The length never changes.
namespace ravo::DIUtils {

/// Returns `text` in upper case.
[[nodiscard]] RAVO_API std::u16string StrToUpper(std::u16string_view text);
[[nodiscard]] RAVO_API std::string StrToUpperA(std::string_view text);
[[nodiscard]] RAVO_API std::u16string StrToUpperW(std::u16string_view text);
/// Converts `text` to upper case in place.
RAVO_API void StrToUpperInPlace(std::u16string& text) noexcept;
RAVO_API void StrToUpperInPlaceA(std::string& text) noexcept;
RAVO_API void StrToUpperInPlaceW(std::u16string& text) noexcept;

/// Returns `text` in lower case.
[[nodiscard]] RAVO_API std::u16string StrToLower(std::u16string_view text);
[[nodiscard]] RAVO_API std::string StrToLowerA(std::string_view text);
[[nodiscard]] RAVO_API std::u16string StrToLowerW(std::u16string_view text);
/// Converts `text` to lower case in place.
RAVO_API void StrToLowerInPlace(std::u16string& text) noexcept;
RAVO_API void StrToLowerInPlaceA(std::string& text) noexcept;
RAVO_API void StrToLowerInPlaceW(std::u16string& text) noexcept;

/// Returns `text` with the first character of each word in upper case and the rest in lower case; the members
/// `ByRef` convert in place. Words are separated by `IsCharWordSeparatorW` in UTF-16, and in 8-bit text by
/// every ASCII character other than letters, digits and "_".
[[nodiscard]] RAVO_API std::string ProperCaseA(std::string_view text);
[[nodiscard]] RAVO_API std::u16string ProperCaseW(std::u16string_view text);
RAVO_API void ProperCaseByRefA(std::string& text) noexcept;
RAVO_API void ProperCaseByRefW(std::u16string& text) noexcept;

}  // namespace ravo::DIUtils

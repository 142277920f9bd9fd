#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Texts in addresses of the web.
namespace ravo::DIUtils {

/// The form encoding: digits, letters of ASCII and "@*-._" stay, a blank becomes "+", every other byte "%"
/// and two upper-case hexadecimal digits. "a b&c" gives "a+b%26c".
[[nodiscard]] RAVO_API std::string StrEncodeUrlA(std::string_view text);

/// Back again: "+" becomes a blank, "%" and two hexadecimal digits of either case one byte. A "%" without
/// them stays as it is, and so does every other byte.
[[nodiscard]] RAVO_API std::string StrDecodeUrlA(std::string_view text);

/// What stands before the first "#"; the whole address where there is none.
[[nodiscard]] RAVO_API std::string StrTimUriFragmentA(std::string_view uri);
/// What stands before the first "#"; the whole address where there is none.
[[nodiscard]] RAVO_API std::u16string StrTrimUriFragmentW(std::u16string_view uri);

/// What stands behind the first "#"; nothing where there is none.
[[nodiscard]] RAVO_API std::u16string StrExtractUriFragmentW(std::u16string_view uri);

}  // namespace ravo::DIUtils

#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// URL encoding and URI fragments.
namespace ravo::DIUtils {

/// Returns `text` in form encoding: ASCII letters and digits and "@*-._" stay, a blank becomes "+", every
/// other byte becomes "%" and two upper-case hexadecimal digits. "a b&c" gives "a+b%26c".
[[nodiscard]] RAVO_API std::string StrEncodeUrlA(std::string_view text);

/// Returns the form-encoded `text` decoded: "+" becomes a blank, "%" and two hexadecimal digits of either
/// case become one byte. A "%" without two digits stays, and so does every other byte.
[[nodiscard]] RAVO_API std::string StrDecodeUrlA(std::string_view text);

/// Returns the part of `uri` before the first "#"; all of it if there is no "#".
[[nodiscard]] RAVO_API std::string StrTimUriFragmentA(std::string_view uri);
/// Returns the part of `uri` before the first "#"; all of it if there is no "#".
[[nodiscard]] RAVO_API std::u16string StrTrimUriFragmentW(std::u16string_view uri);

/// Returns the part of `uri` after the first "#"; empty if there is no "#".
[[nodiscard]] RAVO_API std::u16string StrExtractUriFragmentW(std::u16string_view uri);

}  // namespace ravo::DIUtils

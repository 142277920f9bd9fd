#pragma once

#include <ravo/runtime/export.h>

#include <string_view>

/// Matching of a whole text against a mask: `wild` matches any run of characters, also an empty one, `one`
/// exactly one character. If both are the same character it is `wild`. Matching takes at most (length of
/// text) times (length of mask) steps and allocates nothing.
namespace ravo::DIUtils {

/// Returns whether the whole text matches the mask.
[[nodiscard]] RAVO_API bool StrMatchWild(std::u16string_view text, std::u16string_view mask,
                                         char16_t wild = u'*', char16_t one = u'?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildA(std::string_view text, std::string_view mask, char wild = '*',
                                          char one = '?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildW(std::u16string_view text, std::u16string_view mask,
                                          char16_t wild = u'*', char16_t one = u'?') noexcept;
/// Returns whether the whole text matches the mask after case folding.
[[nodiscard]] RAVO_API bool StrMatchWildI(std::u16string_view text, std::u16string_view mask,
                                          char16_t wild = u'*', char16_t one = u'?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildIA(std::string_view text, std::string_view mask, char wild = '*',
                                           char one = '?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildIW(std::u16string_view text, std::u16string_view mask,
                                           char16_t wild = u'*', char16_t one = u'?') noexcept;

/// Returns whether the whole text matches a mask with "*" and "?".
[[nodiscard]] RAVO_API bool StrMatchesA(std::string_view text, std::string_view mask) noexcept;
[[nodiscard]] RAVO_API bool StrMatchesIA(std::string_view text, std::string_view mask) noexcept;

}  // namespace ravo::DIUtils

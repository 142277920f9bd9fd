#pragma once

#include <ravo/runtime/export.h>

#include <string_view>

/// Match of a whole text against a mask, in which `wild` stands for any run of characters, an empty one too,
/// and `one` for exactly one character. Where both are the same character, it is `wild`. No mask takes more
/// than (length of text) times (length of mask) steps, and nothing is allocated.
namespace ravo::DIUtils {

/// Whether the whole text matches the mask.
[[nodiscard]] RAVO_API bool StrMatchWild(std::u16string_view text, std::u16string_view mask,
                                         char16_t wild = u'*', char16_t one = u'?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildA(std::string_view text, std::string_view mask, char wild = '*',
                                          char one = '?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildW(std::u16string_view text, std::u16string_view mask,
                                          char16_t wild = u'*', char16_t one = u'?') noexcept;
/// The same after case folding.
[[nodiscard]] RAVO_API bool StrMatchWildI(std::u16string_view text, std::u16string_view mask,
                                          char16_t wild = u'*', char16_t one = u'?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildIA(std::string_view text, std::string_view mask, char wild = '*',
                                           char one = '?') noexcept;
[[nodiscard]] RAVO_API bool StrMatchWildIW(std::u16string_view text, std::u16string_view mask,
                                           char16_t wild = u'*', char16_t one = u'?') noexcept;

/// With "*" and "?".
[[nodiscard]] RAVO_API bool StrMatchesA(std::string_view text, std::string_view mask) noexcept;
[[nodiscard]] RAVO_API bool StrMatchesIA(std::string_view text, std::string_view mask) noexcept;

}  // namespace ravo::DIUtils

#pragma once

#include <ravo/runtime/export.h>

/// Tests of one UTF-16 unit for text processing. Each function returns whether the unit is of the kind that
/// its comment names.
namespace ravo::DIUnicode {

/// White space, by the Unicode property White_Space: U+0009 to U+000D, U+0020, U+0085, U+00A0, U+1680, U+2000
/// to U+200A, U+2028, U+2029, U+202F, U+205F and U+3000.
[[nodiscard]] RAVO_API bool CharIsWhiteSpaceW(char16_t c) noexcept;

/// A letter of any script: category L.
[[nodiscard]] RAVO_API bool CharIsAlphaW(char16_t c) noexcept;
/// A letter or a decimal digit of any script: category L or Nd.
[[nodiscard]] RAVO_API bool CharIsAlphaNumW(char16_t c) noexcept;
/// A decimal digit of any script: category Nd.
[[nodiscard]] RAVO_API bool CharIsDigitW(char16_t c) noexcept;
/// 0 to 9, A to F or a to f.
[[nodiscard]] RAVO_API bool CharIsHexDigitW(char16_t c) noexcept;
/// A Hangul syllable, U+AC00 to U+D7A3, for which `CharDecomposeHangulW` has a decomposition.
[[nodiscard]] RAVO_API bool CharIsHangulW(char16_t c) noexcept;

/// Carriage return or line feed.
[[nodiscard]] RAVO_API bool CharIsCrLfW(char16_t c) noexcept;
/// "_".
[[nodiscard]] RAVO_API bool IsCharLowLineW(char16_t c) noexcept;
/// The quotation mark or the apostrophe, U+0022 or U+0027.
[[nodiscard]] RAVO_API bool IsCharQuoteW(char16_t c) noexcept;
/// A word separator: every assigned unit that is not a letter, mark, number, connector such as "_" or
/// surrogate. These are white space, controls, punctuation (including hyphen and apostrophe) and symbols.
[[nodiscard]] RAVO_API bool IsCharWordSeparatorW(char16_t c) noexcept;

/// White space or "&".
[[nodiscard]] RAVO_API bool IsCharWhiteSpaceOrAmpersandW(char16_t c) noexcept;
/// White space or ":".
[[nodiscard]] RAVO_API bool IsCharWhiteSpaceOrColonW(char16_t c) noexcept;
/// White space or U+00A0. U+00A0 has the property, so this equals `CharIsWhiteSpaceW`.
[[nodiscard]] RAVO_API bool IsCharWhiteSpaceOrNoBreakSpaceW(char16_t c) noexcept;
/// White space or ">".
[[nodiscard]] RAVO_API bool CharIsWhiteSpaceGtW(char16_t c) noexcept;
/// White space or "<".
[[nodiscard]] RAVO_API bool CharIsWhiteSpaceLtW(char16_t c) noexcept;
/// White space or "-".
[[nodiscard]] RAVO_API bool CharIsWhiteSpaceHyphenW(char16_t c) noexcept;
/// White space, "-" or ">".
[[nodiscard]] RAVO_API bool CharIsWhiteSpaceHyphenGtW(char16_t c) noexcept;

}  // namespace ravo::DIUnicode

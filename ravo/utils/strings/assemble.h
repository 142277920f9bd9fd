#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// Padding, appending, quoting, and the length of a text.
namespace ravo::DIUtils {

/// Returns `text` padded with `fill` on the left to `length` characters; unchanged if it is at least as long,
/// so for any negative length. Throws `RangeError` if `length` exceeds the length of any text.
[[nodiscard]] RAVO_API std::string PadLeftA(std::string_view text, std::ptrdiff_t length, char fill = ' ');
[[nodiscard]] RAVO_API std::u16string PadLeftW(std::u16string_view text, std::ptrdiff_t length,
                                               char16_t fill = u' ');
/// Returns `text` padded with `fill` on the right to `length` characters, as `PadLeft` does on the left.
[[nodiscard]] RAVO_API std::string PadRightA(std::string_view text, std::ptrdiff_t length, char fill = ' ');
[[nodiscard]] RAVO_API std::u16string PadRightW(std::u16string_view text, std::ptrdiff_t length,
                                                char16_t fill = u' ');

/// Appends a buffer to `target`; a null pointer is an empty buffer. The buffer may be part of `target`.
RAVO_API void ConCatBuf(std::u16string& target, const char16_t* buffer, std::size_t length);
RAVO_API void ConCatBufA(std::string& target, const char* buffer, std::size_t length);
RAVO_API void ConCatBufW(std::u16string& target, const char16_t* buffer, std::size_t length);
/// Appends a character to `target`.
RAVO_API void ConCatChar(std::u16string& target, char16_t c);
RAVO_API void ConCatCharA(std::string& target, char c);
RAVO_API void ConCatCharW(std::u16string& target, char16_t c);
/// Appends a text to `target`; the text may be part of `target`.
RAVO_API void ConCatStr(std::u16string& target, std::u16string_view text);
RAVO_API void ConCatStrA(std::string& target, std::string_view text);
RAVO_API void ConCatStrW(std::u16string& target, std::u16string_view text);

/// Returns `text` with `c` appended, unless it ends with `c` already.
[[nodiscard]] RAVO_API std::u16string StrIncludeTrailingChar(std::u16string_view text, char16_t c);
[[nodiscard]] RAVO_API std::string StrIncludeTrailingCharA(std::string_view text, char c);
[[nodiscard]] RAVO_API std::u16string StrIncludeTrailingCharW(std::u16string_view text, char16_t c);

/// Returns whether the text is empty; blanks are characters.
[[nodiscard]] RAVO_API bool StrIsEmpty(std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrIsEmptyA(std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrIsEmptyW(std::u16string_view text) noexcept;

/// Returns the number of code units before the first U+0000; 0 for a null pointer.
[[nodiscard]] RAVO_API std::size_t StrLenW(const char16_t* text) noexcept;

/// Returns the text between quotes, with each `quote` in it doubled; two quotes for an empty text.
[[nodiscard]] RAVO_API std::u16string QuotedStrW(std::u16string_view text, char16_t quote = u'"');

}  // namespace ravo::DIUtils

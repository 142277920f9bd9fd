#pragma once

#include <ravo/runtime/error.h>
#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// Texts put together: padding, appending, quoting, and how long a text is.
namespace ravo::DIUtils {

/// `text` filled up with `fill` on the left to `length` characters; a text at least as long is returned as it
/// is, so any negative length returns it. `RangeError` for a length that no text can have.
[[nodiscard]] RAVO_API std::string PadLeftA(std::string_view text, std::ptrdiff_t length, char fill = ' ');
[[nodiscard]] RAVO_API std::u16string PadLeftW(std::u16string_view text, std::ptrdiff_t length,
                                               char16_t fill = u' ');
/// The same on the right.
[[nodiscard]] RAVO_API std::string PadRightA(std::string_view text, std::ptrdiff_t length, char fill = ' ');
[[nodiscard]] RAVO_API std::u16string PadRightW(std::u16string_view text, std::ptrdiff_t length,
                                                char16_t fill = u' ');

/// Appends a buffer to `target`; a null pointer is none. The buffer may be the text itself.
RAVO_API void ConCatBuf(std::u16string& target, const char16_t* buffer, std::size_t length);
RAVO_API void ConCatBufA(std::string& target, const char* buffer, std::size_t length);
RAVO_API void ConCatBufW(std::u16string& target, const char16_t* buffer, std::size_t length);
/// Appends a character to `target`.
RAVO_API void ConCatChar(std::u16string& target, char16_t c);
RAVO_API void ConCatCharA(std::string& target, char c);
RAVO_API void ConCatCharW(std::u16string& target, char16_t c);
/// Appends a text to `target`, which may be the text itself.
RAVO_API void ConCatStr(std::u16string& target, std::u16string_view text);
RAVO_API void ConCatStrA(std::string& target, std::string_view text);
RAVO_API void ConCatStrW(std::u16string& target, std::u16string_view text);

/// `text` with `c` behind it, unless it ends with it already.
[[nodiscard]] RAVO_API std::u16string StrIncludeTrailingChar(std::u16string_view text, char16_t c);
[[nodiscard]] RAVO_API std::string StrIncludeTrailingCharA(std::string_view text, char c);
[[nodiscard]] RAVO_API std::u16string StrIncludeTrailingCharW(std::u16string_view text, char16_t c);

/// Whether the text has no character; blanks are characters.
[[nodiscard]] RAVO_API bool StrIsEmpty(std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrIsEmptyA(std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrIsEmptyW(std::u16string_view text) noexcept;

/// The number of code units before the first U+0000; 0 for a null pointer.
[[nodiscard]] RAVO_API std::size_t StrLenW(const char16_t* text) noexcept;

/// `quote`, the text with every `quote` in it doubled, `quote`. Two quotes for an empty text.
[[nodiscard]] RAVO_API std::u16string QuotedStrW(std::u16string_view text, char16_t quote = u'"');

}  // namespace ravo::DIUtils

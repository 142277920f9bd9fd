#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>

/// Search for characters, and the number of their occurrences. Positions are 1-based, 0 means not found; the
/// search begins at `start` (0 counts as 1). The first parameter is what to search for; several characters
/// are a set.
namespace ravo::DIUtils {

/// A test of one character, such as `CharIsDigitW`.
using CharTestA = bool (*)(char);
/// A test of one UTF-16 unit.
using CharTestW = bool (*)(char16_t);

/// Returns the position of the first `c` at or after `start`.
[[nodiscard]] RAVO_API std::size_t StrPosChar(char16_t c, std::u16string_view text,
                                              std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharA(char c, std::string_view text, std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharW(char16_t c, std::u16string_view text,
                                               std::size_t start = 1) noexcept;

/// Returns the position of the last `c` at or before `start`.
[[nodiscard]] RAVO_API std::size_t StrPosCharBackA(char c, std::string_view text,
                                                   std::size_t start = std::string_view::npos) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharBackW(char16_t c, std::u16string_view text,
                                                   std::size_t start = std::u16string_view::npos) noexcept;

/// Returns the position of the first character in `chars` at or after `start`.
[[nodiscard]] RAVO_API std::size_t StrPosCharsA(std::string_view chars, std::string_view text,
                                                std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharsW(std::u16string_view chars, std::u16string_view text,
                                                std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t BufPosCharsA(std::string_view chars, const char* buffer,
                                                std::size_t length, std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t BufPosCharsW(std::u16string_view chars, const char16_t* buffer,
                                                std::size_t length, std::size_t start = 1) noexcept;
/// Returns the position of the last character in `chars` at or before `start`.
[[nodiscard]] RAVO_API std::size_t StrPosCharsBackA(std::string_view chars, std::string_view text,
                                                    std::size_t start = std::string_view::npos) noexcept;

/// Returns the position of the first character not in `chars` at or after `start`.
[[nodiscard]] RAVO_API std::size_t StrPosNotCharsA(std::string_view chars, std::string_view text,
                                                   std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosNotCharsW(std::u16string_view chars, std::u16string_view text,
                                                   std::size_t start = 1) noexcept;
/// Returns the position of the last character not in `chars` at or before `start`.
[[nodiscard]] RAVO_API std::size_t StrPosNotCharsBackA(std::string_view chars, std::string_view text,
                                                       std::size_t start = std::string_view::npos) noexcept;

/// Returns whether `text` contains `c`.
[[nodiscard]] RAVO_API bool StrContainsChar(char16_t c, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsCharA(char c, std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsCharW(char16_t c, std::u16string_view text) noexcept;

/// Returns whether the text contains one of `chars`, or a character that passes `test`.
[[nodiscard]] RAVO_API bool StrContainsCharsA(std::string_view chars, std::string_view text) noexcept;
/// Returns whether the UTF-16 text contains one of `chars`, or a character that passes `test`.
[[nodiscard]] RAVO_API bool StrHasCharsW(std::u16string_view chars, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrHasCharsW(CharTestW test, std::u16string_view text);
/// Returns whether a buffer contains one of `chars`, or a character that passes `test`.
[[nodiscard]] RAVO_API bool BufHasCharsW(std::u16string_view chars, const char16_t* buffer,
                                         std::size_t length) noexcept;
[[nodiscard]] RAVO_API bool BufHasCharsW(CharTestW test, const char16_t* buffer, std::size_t length);

/// Returns whether every character is one of `chars`. True for an empty text.
[[nodiscard]] RAVO_API bool StrConsistsOfW(std::u16string_view chars, std::u16string_view text) noexcept;
/// Returns whether every character of a buffer is one of `chars`, or passes `test`. True for an empty buffer.
[[nodiscard]] RAVO_API bool BufIsCharsW(std::u16string_view chars, const char16_t* buffer,
                                        std::size_t length) noexcept;
[[nodiscard]] RAVO_API bool BufIsCharsW(CharTestW test, const char16_t* buffer, std::size_t length);

/// Returns the number of occurrences of `c` in `text`.
[[nodiscard]] RAVO_API std::size_t StrCountChar(char16_t c, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API std::size_t StrCountCharA(char c, std::string_view text) noexcept;
[[nodiscard]] RAVO_API std::size_t StrCountCharW(char16_t c, std::u16string_view text) noexcept;

}  // namespace ravo::DIUtils

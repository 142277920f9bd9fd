#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>

/// Search for characters, and how many of them there are. Positions are 1-based, 0 means not found; `start`
/// is where the search begins (0 counts as 1). What is searched for comes first; several characters are a
/// set.
namespace ravo::DIUtils {

/// A test of one character, such as `CharIsDigitW`.
using CharTestA = bool (*)(char);
/// The same for UTF-16.
using CharTestW = bool (*)(char16_t);

/// The position of the first `c` from `start` on.
[[nodiscard]] RAVO_API std::size_t StrPosChar(char16_t c, std::u16string_view text,
                                              std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharA(char c, std::string_view text, std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharW(char16_t c, std::u16string_view text,
                                               std::size_t start = 1) noexcept;

/// The position of the last `c` at `start` or before it.
[[nodiscard]] RAVO_API std::size_t StrPosCharBackA(char c, std::string_view text,
                                                   std::size_t start = std::string_view::npos) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharBackW(char16_t c, std::u16string_view text,
                                                   std::size_t start = std::u16string_view::npos) noexcept;

/// The position of the first character that is one of `chars`, from `start` on.
[[nodiscard]] RAVO_API std::size_t StrPosCharsA(std::string_view chars, std::string_view text,
                                                std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosCharsW(std::u16string_view chars, std::u16string_view text,
                                                std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t BufPosCharsA(std::string_view chars, const char* buffer,
                                                std::size_t length, std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t BufPosCharsW(std::u16string_view chars, const char16_t* buffer,
                                                std::size_t length, std::size_t start = 1) noexcept;
/// The position of the last character that is one of `chars`, at `start` or before it.
[[nodiscard]] RAVO_API std::size_t StrPosCharsBackA(std::string_view chars, std::string_view text,
                                                    std::size_t start = std::string_view::npos) noexcept;

/// The position of the first character that is none of `chars`, from `start` on.
[[nodiscard]] RAVO_API std::size_t StrPosNotCharsA(std::string_view chars, std::string_view text,
                                                   std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosNotCharsW(std::u16string_view chars, std::u16string_view text,
                                                   std::size_t start = 1) noexcept;
/// The position of the last character that is none of `chars`, at `start` or before it.
[[nodiscard]] RAVO_API std::size_t StrPosNotCharsBackA(std::string_view chars, std::string_view text,
                                                       std::size_t start = std::string_view::npos) noexcept;

/// Whether `c` stands in `text`.
[[nodiscard]] RAVO_API bool StrContainsChar(char16_t c, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsCharA(char c, std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsCharW(char16_t c, std::u16string_view text) noexcept;

/// Whether one of `chars`, or a character that passes `test`, stands in the text.
[[nodiscard]] RAVO_API bool StrContainsCharsA(std::string_view chars, std::string_view text) noexcept;
/// The same in UTF-16.
[[nodiscard]] RAVO_API bool StrHasCharsW(std::u16string_view chars, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrHasCharsW(CharTestW test, std::u16string_view text);
/// The same in a buffer.
[[nodiscard]] RAVO_API bool BufHasCharsW(std::u16string_view chars, const char16_t* buffer,
                                         std::size_t length) noexcept;
[[nodiscard]] RAVO_API bool BufHasCharsW(CharTestW test, const char16_t* buffer, std::size_t length);

/// Whether every character is one of `chars`, or passes `test`. True for an empty text.
[[nodiscard]] RAVO_API bool StrConsistsOfW(std::u16string_view chars, std::u16string_view text) noexcept;
/// The same in a buffer.
[[nodiscard]] RAVO_API bool BufIsCharsW(std::u16string_view chars, const char16_t* buffer,
                                        std::size_t length) noexcept;
[[nodiscard]] RAVO_API bool BufIsCharsW(CharTestW test, const char16_t* buffer, std::size_t length);

/// How many times `c` stands in `text`.
[[nodiscard]] RAVO_API std::size_t StrCountChar(char16_t c, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API std::size_t StrCountCharA(char c, std::string_view text) noexcept;
[[nodiscard]] RAVO_API std::size_t StrCountCharW(char16_t c, std::u16string_view text) noexcept;

}  // namespace ravo::DIUtils

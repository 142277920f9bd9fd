#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>

/// Equality and order by code units. `I` compares after case folding. A buffer is a pointer, which may be
/// null if the buffer is empty, and a length in characters.
namespace ravo::DIUtils {

/// Returns whether two texts are equal. Texts of different length never are.
[[nodiscard]] RAVO_API bool StrSame(std::u16string_view left, std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API bool StrSameA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API bool StrSameW(std::u16string_view left, std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API bool StrSameI(std::u16string_view left, std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API bool StrSameIA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API bool StrSameIW(std::u16string_view left, std::u16string_view right) noexcept;

/// Returns whether two buffers are equal.
[[nodiscard]] RAVO_API bool BufSameA(const char* left, std::size_t left_length, const char* right,
                                     std::size_t right_length) noexcept;
[[nodiscard]] RAVO_API bool BufSameW(const char16_t* left, std::size_t left_length, const char16_t* right,
                                     std::size_t right_length) noexcept;
[[nodiscard]] RAVO_API bool BufSameIA(const char* left, std::size_t left_length, const char* right,
                                      std::size_t right_length) noexcept;
[[nodiscard]] RAVO_API bool BufSameIW(const char16_t* left, std::size_t left_length, const char16_t* right,
                                      std::size_t right_length) noexcept;

/// Returns whether a buffer and a text are equal.
[[nodiscard]] RAVO_API bool BufStrSame(const char16_t* buffer, std::size_t length,
                                       std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool BufStrSameA(const char* buffer, std::size_t length,
                                        std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool BufStrSameW(const char16_t* buffer, std::size_t length,
                                        std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool BufStrSameI(const char16_t* buffer, std::size_t length,
                                        std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool BufStrSameIA(const char* buffer, std::size_t length,
                                         std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool BufStrSameIW(const char16_t* buffer, std::size_t length,
                                         std::u16string_view text) noexcept;

/// Returns whether `text` begins with `start`; every text begins with the empty text.
[[nodiscard]] RAVO_API bool StrSameStart(std::u16string_view text, std::u16string_view start) noexcept;
[[nodiscard]] RAVO_API bool StrSameStartA(std::string_view text, std::string_view start) noexcept;
[[nodiscard]] RAVO_API bool StrSameStartW(std::u16string_view text, std::u16string_view start) noexcept;
[[nodiscard]] RAVO_API bool StrSameStartI(std::u16string_view text, std::u16string_view start) noexcept;
[[nodiscard]] RAVO_API bool StrSameStartIA(std::string_view text, std::string_view start) noexcept;
[[nodiscard]] RAVO_API bool StrSameStartIW(std::u16string_view text, std::u16string_view start) noexcept;

/// Compares two texts: returns the difference of the first two characters that differ, else that of the
/// lengths. Negative if `left` is less, zero if they are equal, positive if it is greater.
[[nodiscard]] RAVO_API std::ptrdiff_t StrComp(std::u16string_view left, std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompW(std::u16string_view left, std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompI(std::u16string_view left, std::u16string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompIA(std::string_view left, std::string_view right) noexcept;
[[nodiscard]] RAVO_API std::ptrdiff_t StrCompIW(std::u16string_view left, std::u16string_view right) noexcept;

}  // namespace ravo::DIUtils

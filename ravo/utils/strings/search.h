#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string_view>

/// Search for a text in another. Positions are 1-based, 0 means not found; an empty search text is never
/// found. The first parameter is the text to search for; the search begins at `start` (0 counts as 1). `I`
/// ignores case. A buffer is a pointer, which may be null if the buffer is empty, and a length in characters.
namespace ravo::DIUtils {

/// Returns the position of the first `search` in `text` at or after `start`.
[[nodiscard]] RAVO_API std::size_t StrPos(std::u16string_view search, std::u16string_view text,
                                          std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosA(std::string_view search, std::string_view text,
                                           std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosW(std::u16string_view search, std::u16string_view text,
                                           std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosI(std::u16string_view search, std::u16string_view text,
                                           std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosIA(std::string_view search, std::string_view text,
                                            std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosIW(std::u16string_view search, std::u16string_view text,
                                            std::size_t start = 1) noexcept;

/// Returns the position of the last `search` in `text` that begins at or before `start`.
[[nodiscard]] RAVO_API std::size_t StrPosBackA(std::string_view search, std::string_view text,
                                               std::size_t start = std::string_view::npos) noexcept;
[[nodiscard]] RAVO_API std::size_t StrPosBackIA(std::string_view search, std::string_view text,
                                                std::size_t start = std::string_view::npos) noexcept;

/// Returns the position of the first `search` in a buffer at or after `start`.
[[nodiscard]] RAVO_API std::size_t BufPosA(std::string_view search, const char* buffer, std::size_t length,
                                           std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t BufPosIA(std::string_view search, const char* buffer, std::size_t length,
                                            std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t BufPosW(std::u16string_view search, const char16_t* buffer,
                                           std::size_t length, std::size_t start = 1) noexcept;
[[nodiscard]] RAVO_API std::size_t BufPosIW(std::u16string_view search, const char16_t* buffer,
                                            std::size_t length, std::size_t start = 1) noexcept;

/// Returns whether `text` contains `search`.
[[nodiscard]] RAVO_API bool StrContains(std::u16string_view search, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsA(std::string_view search, std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsW(std::u16string_view search, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsI(std::u16string_view search, std::u16string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsIA(std::string_view search, std::string_view text) noexcept;
[[nodiscard]] RAVO_API bool StrContainsIW(std::u16string_view search, std::u16string_view text) noexcept;

}  // namespace ravo::DIUtils

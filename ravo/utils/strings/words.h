#pragma once

#include <ravo/runtime/export.h>
#include <ravo/utils/strings/char_search.h>

#include <cstddef>
#include <string>
#include <string_view>

/// Extraction of words. Positions are 1-based; position 0 counts as 1.
namespace ravo::DIUtils {

/// Returns the word at or after `position`, delimited by characters of `separators`; empty if there is no
/// further word.
[[nodiscard]] RAVO_API std::string ExtractWordA(std::string_view text, std::string_view separators,
                                                std::size_t position = 1);

/// Returns the word at or after `position` and advances `position` directly past it, or past the end of the
/// text if there is no further word: repeated calls return word after word. Separators are a set of
/// characters, or a test.
[[nodiscard]] RAVO_API std::u16string ExtractNextWord(std::u16string_view text,
                                                      std::u16string_view separators, std::size_t& position);
[[nodiscard]] RAVO_API std::u16string ExtractNextWord(std::u16string_view text, CharTestW is_separator,
                                                      std::size_t& position);
[[nodiscard]] RAVO_API std::string ExtractNextWordA(std::string_view text, std::string_view separators,
                                                    std::size_t& position);
[[nodiscard]] RAVO_API std::string ExtractNextWordA(std::string_view text, CharTestA is_separator,
                                                    std::size_t& position);
[[nodiscard]] RAVO_API std::u16string ExtractNextWordW(std::u16string_view text,
                                                       std::u16string_view separators, std::size_t& position);
[[nodiscard]] RAVO_API std::u16string ExtractNextWordW(std::u16string_view text, CharTestW is_separator,
                                                       std::size_t& position);

/// Returns the first characters of the first `count` words, in order: "Jan Amos Komenský" gives "JAK".
/// Separators are those of `ProperCaseA` and `ProperCaseW`.
[[nodiscard]] RAVO_API std::string ExtractWordStartsA(std::string_view text,
                                                      std::size_t count = std::string_view::npos);
[[nodiscard]] RAVO_API std::u16string ExtractWordStartsW(std::u16string_view text,
                                                         std::size_t count = std::u16string_view::npos);

}  // namespace ravo::DIUtils

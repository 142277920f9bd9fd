#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo {

/// The code page number for the system's own 8-bit code page.
inline constexpr std::uint32_t kSystemCodePage = 0;

/// Returns the UTF-16 form of `bytes`, which are text in a code page; empty if the code page is unknown.
///
/// `code_page` is its Windows number.
[[nodiscard]] RAVO_API std::u16string FromCodePage(std::string_view bytes,
                                                   std::uint32_t code_page = kSystemCodePage);

/// Returns `text` in a code page; empty if the code page is unknown.
///
/// `code_page` is its Windows number. The system replaces characters that the code page lacks, by "?" as a
/// last resort.
[[nodiscard]] RAVO_API std::string ToCodePage(std::u16string_view text,
                                              std::uint32_t code_page = kSystemCodePage);

}  // namespace ravo

namespace ravo::DIUnicode {

/// Returns the number of a locale's 8-bit code page; the system's code page if the locale is unknown.
[[nodiscard]] RAVO_API std::uint32_t CodePageFromLocale(std::uint32_t Locale);

}  // namespace ravo::DIUnicode

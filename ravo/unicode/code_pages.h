#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo {

/// The number that means the system's own 8-bit code page.
inline constexpr std::uint32_t kSystemCodePage = 0;

/// Returns 8-bit text of a code page as UTF-16; empty if the code page is unknown.
///
/// `code_page` is the number that Windows gives it.
[[nodiscard]] RAVO_API std::u16string FromCodePage(std::string_view bytes,
                                                   std::uint32_t code_page = kSystemCodePage);

/// Returns UTF-16 text as 8-bit text of a code page; empty if the code page is unknown.
///
/// A character that the code page lacks becomes what the system puts in its place, "?" at the latest.
[[nodiscard]] RAVO_API std::string ToCodePage(std::u16string_view text,
                                              std::uint32_t code_page = kSystemCodePage);

}  // namespace ravo

namespace ravo::DIUnicode {

/// The number of the 8-bit code page of a locale; that of the system if the locale is unknown.
[[nodiscard]] RAVO_API std::uint32_t CodePageFromLocale(std::uint32_t Locale);

}  // namespace ravo::DIUnicode

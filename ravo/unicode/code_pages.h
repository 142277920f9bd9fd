#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::unicode {

/// What stands for the code page of the system.
inline constexpr std::uint32_t kSystemCodePage = 0;

/// Returns 8-bit text of a code page as UTF-16; empty if the code page is unknown.
[[nodiscard]] std::u16string FromCodePage(std::string_view bytes, std::uint32_t code_page);

/// Returns UTF-16 as 8-bit text of a code page; empty if the code page is unknown. A character that it lacks
/// becomes what the system puts in its place, "?" at the latest.
[[nodiscard]] std::string ToCodePage(std::u16string_view text, std::uint32_t code_page);

}  // namespace ravo::unicode

namespace ravo::DIUnicode {

/// The number of the 8-bit code page of a locale; that of the system if the locale is unknown.
[[nodiscard]] RAVO_API std::uint32_t CodePageFromLocale(std::uint32_t Locale);

}  // namespace ravo::DIUnicode

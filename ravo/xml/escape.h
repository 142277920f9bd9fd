#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo {
namespace ECXMLParser {

/// Returns `S` with "&", "<", ">" and double quotes as entities and CR LF as "<br/>". Apostrophes stay.
[[nodiscard]] RAVO_API std::u16string StrToXML(std::u16string_view S);

/// Returns `S` with "&lt;", "&gt;", "&quot;" and then "&amp;" replaced by their characters, one level deep.
///
/// Other entities and "<br/>" stay.
[[nodiscard]] RAVO_API std::u16string XMLToStr(std::u16string_view S);

}  // namespace ECXMLParser

// The same for bytes of the 8-bit code page.
namespace xml {

[[nodiscard]] std::string Escaped(std::string_view text);
[[nodiscard]] std::string Unescaped(std::string_view text);
/// Reverses `Escaped`, "<br/>" included.
[[nodiscard]] std::string Unsaved(std::string_view saved);
/// Applies `Unescaped` that many times.
[[nodiscard]] std::string Unescaped(std::string_view text, std::size_t times);

/// Returns whether `Escaped` would change `text`.
[[nodiscard]] bool NeedsEscape(std::string_view text) noexcept;

/// Returns the end of the longest part from `at` on that is escaped already and has neither control
/// characters nor two blanks in a row. `kReadAhead` bytes after `end` must be readable.
[[nodiscard]] const char* EndOfPlainText(const char* at, const char* end) noexcept;

}  // namespace xml
}  // namespace ravo

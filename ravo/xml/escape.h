#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo {
namespace ECXMLParser {

/// `S` with "&", "<", ">", the double quote and CR LF written as XML has them, the last as "<br/>".
/// Apostrophes stay.
[[nodiscard]] RAVO_API std::u16string StrToXML(std::u16string_view S);

/// `S` with "&lt;", "&gt;", "&quot;" and then "&amp;" as what they stand for, one level deep. No other entity
/// is known, and "<br/>" stays.
[[nodiscard]] RAVO_API std::u16string XMLToStr(std::u16string_view S);

}  // namespace ECXMLParser

// The same on bytes of the 8-bit code page, for the tree.
namespace xml {

[[nodiscard]] std::string Escaped(std::string_view text);
[[nodiscard]] std::string Unescaped(std::string_view text);
/// Takes back what `Escaped` did, "<br/>" included.
[[nodiscard]] std::string Unwritten(std::string_view written);
/// `Unescaped` applied that many times.
[[nodiscard]] std::string Unescaped(std::string_view text, std::size_t times);

/// Whether `Escaped` would change a text.
[[nodiscard]] bool NeedsEscape(std::string_view text) noexcept;

/// Where in `at` to `end` the text stops to be such that it stands escaped already, without control
/// characters and double blanks. `kReadAhead` bytes behind the end must be readable.
[[nodiscard]] const char* EndOfPlainText(const char* at, const char* end) noexcept;

}  // namespace xml
}  // namespace ravo

#pragma once

#include <ravo/convert/utf8_reader.h>

#include <cstddef>
#include <string>
#include <string_view>

/// Characters, names and references of XML, in UTF-8.
namespace ravo::document {

using convert::FirstCharacter;
using convert::Utf8Character;
using convert::ValidUtf8Length;

/// The white space of XML.
inline constexpr std::string_view kXmlSpace = " \t\r\n";

/// Appends a character in UTF-8.
void AppendUtf8(char32_t c, std::string& to);

/// Returns whether XML 1.0 allows a character in a document.
[[nodiscard]] bool IsXmlCharacter(char32_t c);

/// Returns the position of the first byte that starts no character of XML, or the size of `text`.
[[nodiscard]] std::size_t FindBadCharacter(std::string_view text);

/// Returns the end of the longest name that starts at `at`, or `at` if none does.
[[nodiscard]] std::size_t EndOfXmlName(std::string_view text, std::size_t at);

/// Returns whether `text` is a name.
[[nodiscard]] bool IsXmlName(std::string_view text);

/// Returns a character as messages show it, such as "U+010D".
[[nodiscard]] std::string CodePointName(char32_t c);

/// Returns the reference that starts at the "&" at `at`, up to its ";", or an empty text otherwise.
[[nodiscard]] std::string_view ReferenceAt(std::string_view text, std::size_t at);

/// Returns the name of a reference, without its "&" and ";".
[[nodiscard]] std::string_view NameOfReference(std::string_view reference);

/// Returns the character of a numeric reference or of one of the five such as "&lt;"; 0 for any other.
[[nodiscard]] char32_t CharacterOfReference(std::string_view reference);

}  // namespace ravo::document

#pragma once

#include <ravo/codec/encoding.h>

#include <string>
#include <string_view>

/// Conversion of whole texts in memory.
namespace ravo::codec {

/// Returns `bytes` decoded, up to a unit that ends the data. Malformed bytes give U+FFFD.
[[nodiscard]] std::u16string Decoded(const Encoding& encoding, std::string_view bytes);

/// Returns `text` encoded, with "?" for what the encoding lacks. If it lacks "?" too, the result ends there.
[[nodiscard]] std::string Encoded(const Encoding& encoding, std::u16string_view text);

/// Returns UTF-8 decoded with `Utf8OfStrings`, for the string functions.
[[nodiscard]] std::u16string DecodedUtf8OfStrings(std::string_view bytes);
/// Returns the number of units that `DecodedUtf8OfStrings` gives.
[[nodiscard]] std::size_t CountUtf8OfStrings(std::string_view bytes) noexcept;
/// Returns `text` in UTF-8, each unit by itself. Three times its length must be a valid size.
[[nodiscard]] std::string EncodedUtf8OfStrings(std::u16string_view text);

/// Windows-1250 as a system's code page: unassigned bytes are control characters, and characters without a
/// byte become "?".
[[nodiscard]] std::u16string DecodedWindows1250OfSystem(std::string_view bytes);
[[nodiscard]] std::string EncodedWindows1250OfSystem(std::u16string_view text);

}  // namespace ravo::codec

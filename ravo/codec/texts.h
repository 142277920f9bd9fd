#pragma once

#include <ravo/codec/encoding.h>

#include <string>
#include <string_view>

/// Texts in memory as a whole.
namespace ravo::codec {

/// Returns the text of `bytes`, up to what ends the data. U+FFFD for what is malformed.
[[nodiscard]] std::u16string Decoded(const Encoding& encoding, std::string_view bytes);

/// Returns the bytes of `text`. "?" for what the encoding lacks; the text ends before that if it lacks "?"
/// too.
[[nodiscard]] std::string Encoded(const Encoding& encoding, std::u16string_view text);

/// UTF-8 of the string functions, by `Utf8OfStrings`.
[[nodiscard]] std::u16string DecodedUtf8OfStrings(std::string_view bytes);
/// How many units decoding gives.
[[nodiscard]] std::size_t CountUtf8OfStrings(std::string_view bytes) noexcept;
/// Three times the length of `text` has to be a number of bytes.
[[nodiscard]] std::string EncodedUtf8OfStrings(std::u16string_view text);

/// Windows-1250 as a system's own code page: bytes without a character are controls, "?" for characters
/// without a byte.
[[nodiscard]] std::u16string DecodedWindows1250OfSystem(std::string_view bytes);
[[nodiscard]] std::string EncodedWindows1250OfSystem(std::u16string_view text);

}  // namespace ravo::codec

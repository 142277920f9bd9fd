#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// Conversion between UTF-8 and single UTF-16 units. Each sequence of four bytes or more is decoded as one
/// U+FFFD; each unit is encoded as one to three bytes, surrogates too. (`ToUtf8` and `FromUtf8` know
/// surrogate pairs.) A buffer is a pointer, which may be null if the buffer is empty, and a length.
namespace ravo::DIUtils {

/// Returns the number of UTF-16 units of the decoded text.
[[nodiscard]] RAVO_API std::size_t BufCountUtf8Chars(const char* buffer, std::size_t length) noexcept;
[[nodiscard]] RAVO_API std::size_t StrCountUtf8Chars(std::string_view bytes) noexcept;

/// Returns UTF-8 decoded as UTF-16.
///
/// One U+FFFD replaces each trailing byte without a lead byte, each overlong sequence of two or three bytes,
/// each sequence of four to six bytes, and each truncated sequence; the byte after a truncated sequence is
/// decoded by itself. Surrogates are decoded as they are.
[[nodiscard]] RAVO_API std::u16string BufDecodeUtf8(const char* buffer, std::size_t length);
[[nodiscard]] RAVO_API std::u16string StrDecodeUtf8(std::string_view bytes);

/// Returns UTF-16 encoded as UTF-8, each unit by itself.
[[nodiscard]] RAVO_API std::string BufEncodeUtf8(const char16_t* buffer, std::size_t length);
[[nodiscard]] RAVO_API std::string StrEncodeUtf8(std::u16string_view text);

}  // namespace ravo::DIUtils

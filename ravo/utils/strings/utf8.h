#pragma once

#include <ravo/runtime/export.h>

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8 of texts that hold code units of UTF-16 one by one. Each sequence of four bytes or more becomes one
/// U+FFFD, each code unit becomes a sequence of one to three bytes, halves of surrogate pairs too. (`ToUtf8`
/// and `FromUtf8` know pairs.) A buffer is a pointer (null for none) and a length.
namespace ravo::DIUtils {

/// The number of code units that decoding gives.
[[nodiscard]] RAVO_API std::size_t BufCountUtf8Chars(const char* buffer, std::size_t length) noexcept;
[[nodiscard]] RAVO_API std::size_t StrCountUtf8Chars(std::string_view bytes) noexcept;

/// UTF-8 to UTF-16. One U+FFFD stands for each trail byte without a lead, each over-long form of two or three
/// bytes, each sequence of four to six bytes, and each sequence that is cut short; the byte that cuts it
/// short is looked at anew. Surrogate values are taken as they are.
[[nodiscard]] RAVO_API std::u16string BufDecodeUtf8(const char* buffer, std::size_t length);
[[nodiscard]] RAVO_API std::u16string StrDecodeUtf8(std::string_view bytes);

/// UTF-16 to UTF-8, each code unit by itself.
[[nodiscard]] RAVO_API std::string BufEncodeUtf8(const char16_t* buffer, std::size_t length);
[[nodiscard]] RAVO_API std::string StrEncodeUtf8(std::u16string_view text);

}  // namespace ravo::DIUtils

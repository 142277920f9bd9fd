#pragma once

#include <cstddef>
#include <string_view>

/// UTF-8 of the string functions character by character: the reference, and what kernels leave.
namespace ravo::strings {

/// Characters that are converted one by one before the kernels are tried again.
inline constexpr std::size_t kFew = 16;

/// Takes one character of UTF-8 off the front of `rest`, which is not empty: the code unit that it gives.
[[nodiscard]] char16_t TakeUtf8Unit(std::string_view& rest) noexcept;

/// Decodes into `out`, which has room for one unit per byte; returns the end of what was written.
[[nodiscard]] char16_t* DecodeUtf8Plainly(std::string_view bytes, char16_t* out) noexcept;
/// The first `kFew` characters of `bytes` at most, which are taken off.
[[nodiscard]] char16_t* DecodeFewUtf8(std::string_view& bytes, char16_t* out) noexcept;

/// Encodes into `out`, which has room for what is written; returns its end.
[[nodiscard]] char* EncodeUtf8Plainly(std::u16string_view text, char* out) noexcept;

}  // namespace ravo::strings

#pragma once

#include <cstddef>
#include <string_view>

namespace ravo::strings {

/// Takes one character of UTF-8 off the front of `rest`, which is not empty: the code unit that it gives.
[[nodiscard]] char16_t TakeUtf8Unit(std::string_view& rest) noexcept;

/// Decodes into `out`, which has room for one unit per byte; gives the end of what was written. The first is
/// the plain reference; the second treats runs of ASCII by vectors.
[[nodiscard]] char16_t* DecodeUtf8Plainly(std::string_view bytes, char16_t* out) noexcept;
[[nodiscard]] char16_t* DecodeUtf8(std::string_view bytes, char16_t* out) noexcept;
/// The first characters of `bytes`, sixteen at most, which are taken off.
[[nodiscard]] char16_t* DecodeFewUtf8(std::string_view& bytes, char16_t* out) noexcept;

/// Encodes into `out`, which has room for three bytes per unit; gives the end of what was written.
/// Plainly and by vectors as above.
[[nodiscard]] char* EncodeUtf8Plainly(std::u16string_view text, char* out) noexcept;
[[nodiscard]] char* EncodeUtf8(std::u16string_view text, char* out) noexcept;

}  // namespace ravo::strings

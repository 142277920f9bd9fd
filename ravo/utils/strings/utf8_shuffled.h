#pragma once

#include <string_view>

namespace ravo::strings {

/// `DecodeUtf8` and `EncodeUtf8` with shuffles (SSSE3), where the processor `CanShuffle`: sixteen bytes or
/// units at a time where all are below U+0800, as in the languages of Europe.
[[nodiscard]] char16_t* DecodeUtf8Shuffled(std::string_view bytes, char16_t* out) noexcept;
[[nodiscard]] char* EncodeUtf8Shuffled(std::u16string_view text, char* out) noexcept;
[[nodiscard]] bool CanShuffle() noexcept;

}  // namespace ravo::strings

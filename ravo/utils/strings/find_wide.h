#pragma once

#include <cstddef>

namespace ravo::strings {

/// `PassOver` by vectors of 32 bytes (AVX2), where `CanPassOverWidely`.
[[nodiscard]] std::size_t PassOverWidely(const char* text, const char* last_text, std::size_t places,
                                         const char (&ends)[2]) noexcept;
[[nodiscard]] std::size_t PassOverWidely(const char16_t* text, const char16_t* last_text, std::size_t places,
                                         const char16_t (&ends)[2]) noexcept;
[[nodiscard]] bool CanPassOverWidely() noexcept;

}  // namespace ravo::strings

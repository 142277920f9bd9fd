#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>

/// Simple mappings and the combining class of one code unit of UTF-16: two array reads, no allocation. Each
/// mapping gives one unit for one unit; what has no such mapping (U+00DF in upper case, surrogates) stays.
namespace ravo::DIUnicode {

/// What two units have in common that differ in case alone. "A" and "a" give "a".
[[nodiscard]] RAVO_API char16_t CharToCaseFoldW(char16_t c) noexcept;
/// The upper case.
[[nodiscard]] RAVO_API char16_t CharToUpperW(char16_t c) noexcept;
/// The lower case.
[[nodiscard]] RAVO_API char16_t CharToLowerW(char16_t c) noexcept;
/// The form of a first letter: the upper case, but U+01C5 for U+01C4 to U+01C6 and the like.
[[nodiscard]] RAVO_API char16_t CharToTitleW(char16_t c) noexcept;

/// The canonical combining class: 0 for what starts a sequence, the order of marks behind it otherwise (230
/// for most marks above a letter).
[[nodiscard]] RAVO_API std::uint8_t CharCanonicalCombiningClassW(char16_t c) noexcept;

}  // namespace ravo::DIUnicode

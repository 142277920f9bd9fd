#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Numbers by their value, whatever their length: compared, and as sort keys whose bytes compare as they do.
namespace ravo::order {

/// Returns how many of the first characters are digits 0 to 9.
[[nodiscard]] std::size_t LengthOfDigits(std::string_view text) noexcept;

/// Returns a run of digits without its leading zeros.
[[nodiscard]] std::string_view WithoutZeros(std::string_view digits) noexcept;

/// Appends the key of a run of digits. Leading zeros do not count.
void AppendNumberKey(std::string_view digits, std::string& key);

/// Returns -1, 0 or 1: how the numbers compare with which two texts begin. A number is a sign, digits, blanks
/// between them, a decimal comma or point: "-1 234,50". A text without a number is less than any number.
[[nodiscard]] int CompareDecimals(std::string_view a, std::string_view b) noexcept;

/// Appends the key of the number with which a text begins, as `CompareDecimals` reads it.
void AppendDecimalKey(std::string_view text, std::string& key);

}  // namespace ravo::order

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Numbers as sort keys: their bytes compare as the numbers do, whatever their length.
namespace tool {

/// Returns how many of the first characters are digits 0 to 9.
[[nodiscard]] std::size_t LengthOfDigits(std::string_view text);

/// Appends the key of a run of digits. Leading zeros do not count.
void AppendNumberKey(std::string_view digits, std::string& key);

/// Appends the key of the number with which a text begins: a sign, digits, blanks between them, a decimal
/// comma or point: "-1 234,50". A text without a number is less than any number.
void AppendDecimalKey(std::string_view text, std::string& key);

}  // namespace tool

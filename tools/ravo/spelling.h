#pragma once

#include <functional>
#include <string>

namespace tool {

/// Returns the closest spelling of a character in other ones, in UTF-16: "e" for "ê", "1/2" for "½", "ae" for
/// "æ". It keeps as many diacritics as `has` allows, which returns whether a character may be used. Empty
/// without one.
[[nodiscard]] std::u16string SpellingOf(char32_t code, const std::function<bool(char16_t)>& has);

}  // namespace tool

#pragma once

#include <string_view>

namespace ravo::convert {

/// Returns how much a text looks like Czech, by its characters past ASCII and what is beside each of them, in
/// bits: a reading that has eight more than another one of the same bytes is 256 times as likely.
[[nodiscard]] int CzechLikeness(std::u16string_view text);

}  // namespace ravo::convert

#pragma once

#include <array>
#include <string_view>

namespace ravo::utils {

/// Returns the short German names of the days, Sunday first: in the 8-bit code page, in UTF-16.
///
/// The names exist from the moment the library is mapped until the stop of `DIUtils` releases them. A later
/// start does not bring them back: they are empty until the library is mapped anew. Reading them while the
/// module stops is undefined.
[[nodiscard]] const std::array<std::string_view, 7>& ShortGermanDaysA() noexcept;
[[nodiscard]] const std::array<std::u16string_view, 7>& ShortGermanDaysW() noexcept;

}  // namespace ravo::utils

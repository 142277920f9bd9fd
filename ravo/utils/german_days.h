#pragma once

#include <array>
#include <string_view>

/// The short German names of the days, Sunday first. They exist from the moment the library is mapped until
/// the stop of the module releases them: a later start does not bring them back, every name reads as empty
/// until the library is mapped anew. Reading them while the module stops is undefined.
namespace ravo::DIUtils {

/// In the 8-bit code page.
[[nodiscard]] const std::array<std::string_view, 7>& ShortGermanDaysA() noexcept;
[[nodiscard]] const std::array<std::u16string_view, 7>& ShortGermanDaysW() noexcept;

}  // namespace ravo::DIUtils

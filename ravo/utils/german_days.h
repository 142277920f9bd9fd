#pragma once

#include <array>
#include <string_view>

/// The short German names of the days, Sunday first. They are valid from the load of the library until the
/// module stops; a later start does not restore them, so every name is empty until the library is loaded
/// again. Reading them while the module stops is undefined.
namespace ravo::DIUtils {

/// Returns the names in the 8-bit code page.
[[nodiscard]] const std::array<std::string_view, 7>& ShortGermanDaysA() noexcept;
[[nodiscard]] const std::array<std::u16string_view, 7>& ShortGermanDaysW() noexcept;

}  // namespace ravo::DIUtils

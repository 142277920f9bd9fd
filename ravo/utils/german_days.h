#pragma once

#include <array>
#include <string>

/// The short German names of the days, Sunday first. They exist from the moment the library is mapped. The
/// stop of the module releases them: from then on every name reads as empty, until the module is started
/// again or the library is mapped anew. Reading them while the module stops or starts is undefined.
namespace ravo::DIUtils {

/// In the 8-bit code page.
[[nodiscard]] const std::array<std::string, 7>& ShortGermanDaysA() noexcept;
[[nodiscard]] const std::array<std::u16string, 7>& ShortGermanDaysW() noexcept;

}  // namespace ravo::DIUtils

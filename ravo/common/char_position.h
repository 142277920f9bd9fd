#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string_view>

namespace ravo::RavoInterfaceCommon {

/// Returns the 1-based position of the `n`-th occurrence of `ch` in `text`, or 0 if there are fewer or `n` is
/// below 1.
///
///     CharPosition(u"a;b;c", u';', 2)   // 4
[[nodiscard]] RAVO_API std::int32_t CharPosition(std::u16string_view text, char16_t ch, std::int32_t n);

}  // namespace ravo::RavoInterfaceCommon

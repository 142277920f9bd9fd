#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

namespace ravo::RavoInterfaceCommon {

/// Returns `size`, in bytes, as a text in the user's locale.
///
/// Above 1048576 bytes it has exactly one decimal: "1 234,5 MB". Above 1024 it is "1,5 kB" or "2 kB"; up to
/// 1024, and if negative, "1024 B". `withBytes` appends the number of bytes to a larger unit: "1,5 kB (1536
/// B)". Tenths are rounded to nearest, ties to even.
[[nodiscard]] RAVO_API std::u16string BytesToStr(std::int64_t size, bool withBytes);

}  // namespace ravo::RavoInterfaceCommon

#pragma once

#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

namespace ravo::RavoInterfaceCommon {

/// A count of bytes for people, in the user's locale: "1 234,5 MB" with exactly one decimal above 1048576
/// bytes, "1,5 kB" or "2 kB" above 1024, "1024 B" up to there and for negative counts. `withBytes` adds the
/// plain count behind a unit: "1,5 kB (1536 B)". Tenths are rounded to nearest, ties to even.
[[nodiscard]] RAVO_API std::u16string BytesToStr(std::int64_t size, bool withBytes);

}  // namespace ravo::RavoInterfaceCommon

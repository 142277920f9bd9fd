#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Field names with an optional table name and "." before them.
namespace ravo::RavoInterfaceCommon {

/// Returns the part of `name` before its first ".", or all of it if there is no ".": "Faktury" for
/// "Faktury.Cislo".
[[nodiscard]] RAVO_API std::u16string ExtractTableFromProperty(std::u16string_view name);

/// Returns `properties` without any occurrence of `table` followed by ".".
///
/// The first occurrence is deleted again and again, including those that a deletion creates. The comparison
/// is case-sensitive. An empty `table` deletes every ".". The time is linear in the sum of both
/// lengths.
///
///     RemoveTableFromProperties(u"F", u"F.A;F.B;G.C")   // "A;B;G.C"
[[nodiscard]] RAVO_API std::u16string RemoveTableFromProperties(std::u16string_view table,
                                                                std::u16string_view properties);

}  // namespace ravo::RavoInterfaceCommon

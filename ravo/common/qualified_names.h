#pragma once

#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

/// Field names that a table's name and a "." may stand in front of.
namespace ravo::RavoInterfaceCommon {

/// What stands before the first "."; the whole name where there is none. "Faktury" for "Faktury.Cislo".
[[nodiscard]] RAVO_API std::u16string ExtractTableFromProperty(std::u16string_view name);

/// `properties` with the first `table` followed by "." deleted as long as there is one, those too that a
/// deletion brings together; case counts. An empty table removes every ".". "A;B;G.C" for the table "F" and
/// "F.A;F.B;G.C". The time grows with the sum of both lengths.
[[nodiscard]] RAVO_API std::u16string RemoveTableFromProperties(std::u16string_view table,
                                                                std::u16string_view properties);

}  // namespace ravo::RavoInterfaceCommon

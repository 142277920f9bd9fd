#pragma once

#include <ravo/catalogue/module_tables.h>
#include <ravo/runtime/export.h>

#include <string>
#include <string_view>

namespace ravo::RavoBaseConstants {

/// Returns the cached fields of a table by its name, as column names joined by commas; empty for an unknown
/// table.
///
/// The name is compared as a whole and with case.
[[nodiscard]] RAVO_API std::u16string GetBaseTableCachedFields(std::u16string_view table);

/// Stores the cached fields in `result`, which keeps its value if the table is unknown.
RAVO_API void GetBaseTableCachedFields(std::u16string_view table, std::u16string& result);

}  // namespace ravo::RavoBaseConstants

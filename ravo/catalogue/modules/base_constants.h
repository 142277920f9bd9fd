#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoBaseConstants {

/// Returns the description of table `id` if it belongs to this module, else an empty text.
[[nodiscard]] RAVO_API std::u16string GetBaseTableDescription(std::int32_t id);

/// Returns the cached fields of a table as column names joined by commas; empty if the table is unknown. The
/// name of the table must match as a whole and in case.
[[nodiscard]] RAVO_API std::u16string GetBaseTableCachedFields(std::u16string_view table);

/// Stores the cached fields of a table in `result`, which is unchanged if the table is unknown.
RAVO_API void GetBaseTableCachedFields(std::u16string_view table, std::u16string& result);

}  // namespace ravo::RavoBaseConstants

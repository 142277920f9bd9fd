#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoBaseConstants {

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetBaseTableDescription(std::int32_t id);

/// The fields that are cached for a table, as column names joined by commas; empty for an unknown table. The
/// name of the table is compared as a whole and with case.
[[nodiscard]] RAVO_API std::u16string GetBaseTableCachedFields(std::u16string_view table);

/// As above, into a variable of the caller's, which keeps what it holds where the table is unknown.
RAVO_API void GetBaseTableCachedFields(std::u16string_view table, std::u16string& result);

}  // namespace ravo::RavoBaseConstants

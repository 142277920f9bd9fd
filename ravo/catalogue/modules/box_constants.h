#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoBoxConstants {

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetBoxTableDescription(std::int32_t id);

/// The fields that are cached for a table, given the table's name: none for any table of this module, so that
/// the result is always empty.
[[nodiscard]] RAVO_API std::u16string GetBoxTableCachedFields(std::u16string_view table);

}  // namespace ravo::RavoBoxConstants

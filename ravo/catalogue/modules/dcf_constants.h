#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoDCFConstants {

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetDCFTableDescription(std::int32_t id);

/// The fields that are cached for a table, given the table's name: none for any table of this module, so that
/// the result is always empty.
[[nodiscard]] RAVO_API std::u16string GetDCFTableCachedFields(std::u16string_view table);

}  // namespace ravo::RavoDCFConstants

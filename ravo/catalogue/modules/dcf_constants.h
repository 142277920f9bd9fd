#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoDCFConstants {

/// Class identifier of the company databank's factory of business objects.
inline constexpr Guid sClassFactoryDCFGUID("{ADB2B48C-94D7-47E9-9F9B-105D162C8A04}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetDCFTableDescription(std::int32_t id);

/// The fields that are cached for a table, given the table's name: none for any table of this module, so that
/// the result is always empty.
[[nodiscard]] RAVO_API std::u16string GetDCFTableCachedFields(std::u16string_view table);

}  // namespace ravo::RavoDCFConstants

#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoRSSConstants {

/// Class identifier of the RSS reader's factory of business objects.
inline constexpr Guid sClassFactoryRSSGUID("{A71DA20E-DF27-4C69-AE69-FD575EF19341}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetRSSTableDescription(std::int32_t id);

/// The fields that are cached for a table, given the table's name: none for any table of this module, so that
/// the result is always empty.
[[nodiscard]] RAVO_API std::u16string GetRSSTableCachedFields(std::u16string_view table);

}  // namespace ravo::RavoRSSConstants

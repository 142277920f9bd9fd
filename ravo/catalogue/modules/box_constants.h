#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoBoxConstants {

/// Class identifier of the portal box's factory of business objects.
inline constexpr Guid sClassFactoryBoxGUID("{E7B4E0F7-A185-46FC-9A0F-47F73AD18B79}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetBoxTableDescription(std::int32_t id);

/// The fields that are cached for a table, given the table's name: none for any table of this module, so that
/// the result is always empty.
[[nodiscard]] RAVO_API std::u16string GetBoxTableCachedFields(std::u16string_view table);

}  // namespace ravo::RavoBoxConstants

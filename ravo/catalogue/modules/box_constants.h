#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::RavoBoxConstants {

/// Returns the description of table `id` if it belongs to this module, else an empty text.
[[nodiscard]] RAVO_API std::u16string GetBoxTableDescription(std::int32_t id);

/// Returns the cached fields of a table, given by name. No table of this module has any, so the result is
/// always empty.
[[nodiscard]] RAVO_API std::u16string GetBoxTableCachedFields(std::u16string_view table);

}  // namespace ravo::RavoBoxConstants

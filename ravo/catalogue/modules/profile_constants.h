#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

namespace ravo::RavoProfileConstants {

/// Returns the description of table `id` if it belongs to this module, else an empty text.
[[nodiscard]] RAVO_API std::u16string GetProfilTableDescription(std::int32_t id);

}  // namespace ravo::RavoProfileConstants

#pragma once

#include <ravo/catalogue/class_identifiers.h>
#include <ravo/runtime/export.h>

#include <cstdint>
#include <string>

namespace ravo::RavoProfileConstants {

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetProfilTableDescription(std::int32_t id);

}  // namespace ravo::RavoProfileConstants

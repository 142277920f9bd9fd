#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>

namespace ravo::RavoKancelarConstants {

/// Class identifier of the office module's factory of business objects.
inline constexpr Guid sClassFactoryKancelarGUID("{794538E4-1563-410E-9161-5DB3C650200B}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetKancelarTableDescription(std::int32_t id);

}  // namespace ravo::RavoKancelarConstants

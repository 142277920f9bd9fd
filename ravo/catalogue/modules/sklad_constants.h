#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>

namespace ravo::RavoSkladConstants {

/// Class identifier of the warehouse module's factory of business objects.
inline constexpr Guid sClassFactorySkladGUID("{DE1A7008-ED38-4374-AEFB-511059973D85}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetSkladTableDescription(std::int32_t id);

}  // namespace ravo::RavoSkladConstants

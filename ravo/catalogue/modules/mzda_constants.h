#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>

namespace ravo::RavoMzdaConstants {

/// Class identifier of the payroll module's factory of business objects.
inline constexpr Guid sClassFactoryMzdaGUID("{6618E68F-4B88-438C-88B4-C94D3DA7D666}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetMzdaTableDescription(std::int32_t id);

}  // namespace ravo::RavoMzdaConstants

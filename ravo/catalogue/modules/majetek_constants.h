#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>

namespace ravo::RavoMajetekConstants {

/// Class identifier of the fixed-asset module's factory of business objects.
inline constexpr Guid sClassFactoryMajetekGUID("{121787A8-3765-414A-977F-8B68D4890BF6}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetMajetekTableDescription(std::int32_t id);

}  // namespace ravo::RavoMajetekConstants

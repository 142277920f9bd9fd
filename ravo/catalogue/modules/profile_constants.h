#pragma once

#include <ravo/runtime/export.h>
#include <ravo/runtime/guid.h>

#include <cstdint>
#include <string>

namespace ravo::RavoProfileConstants {

/// Class identifier of the profile administration's factory of business objects.
inline constexpr Guid sClassFactoryProfileGUID("{9931EEB7-9D42-492A-BA73-7DC2D8DDF926}");

/// The description of table `id` where that table belongs to this module; empty for every other identifier.
[[nodiscard]] RAVO_API std::u16string GetProfilTableDescription(std::int32_t id);

}  // namespace ravo::RavoProfileConstants

#pragma once

#include <cstdint>

namespace ravo::platform {

/// The root keys of the registry.
enum class RegistryRoot : std::uint8_t { ClassesRoot, CurrentUser, LocalMachine, Users };

}  // namespace ravo::platform

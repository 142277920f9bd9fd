#pragma once

#include <ravo/platform/machine.h>

#include <cstdint>
#include <string_view>

namespace ravo::platform::posix {

/// Up to three numbers of a kernel's release, and as service pack what follows them without its leading dash:
/// "6.1.0-13-amd64" is 6, 1, 0 and "13-amd64".
[[nodiscard]] SystemVersion VersionFromRelease(std::string_view release);

/// The architecture that a kernel's machine name stands for; 0xFFFF for one without a number.
[[nodiscard]] std::uint16_t ArchitectureFromMachineName(std::string_view name);

}  // namespace ravo::platform::posix

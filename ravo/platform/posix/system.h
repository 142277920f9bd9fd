#pragma once

#include <ravo/platform/system.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Up to three numbers of a kernel's release, and as service pack what follows them without its leading dash:
/// "6.1.0-13-amd64" is 6, 1, 0 and "13-amd64".
[[nodiscard]] SystemVersion VersionFromRelease(std::string_view release);

/// The architecture that a kernel's machine name stands for; 0xFFFF for one without a number.
[[nodiscard]] std::uint16_t ArchitectureFromMachineName(std::string_view name);

/// Returns the computer's name; empty if the system does not tell.
[[nodiscard]] std::u16string HostName();

}  // namespace ravo::platform::posix

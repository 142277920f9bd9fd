#pragma once

#include <ravo/platform/system.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace ravo::platform::posix {

/// Returns the version record of a kernel's release: up to three numbers, and the rest without its leading
/// dash as service pack. "6.1.0-13-amd64" is 6, 1, 0 and "13-amd64".
[[nodiscard]] SystemVersion VersionFromRelease(std::string_view release);

/// Returns the architecture of a kernel's machine name; 0xFFFF if Windows has no number for it.
[[nodiscard]] std::uint16_t ArchitectureFromMachineName(std::string_view name);

/// Returns the computer's name; empty if the system does not tell.
[[nodiscard]] std::u16string HostName();

}  // namespace ravo::platform::posix

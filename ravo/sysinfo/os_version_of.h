#pragma once

#include <ravo/platform/system.h>
#include <ravo/sysinfo/os_version.h>

#include <cstdint>

namespace ravo::RavoInterfaceInfo {

/// Returns the kind that a version record names; `osUnknown` for a system newer than the last kind, older
/// than the first, or not Windows.
[[nodiscard]] TOSVersion OSVersionOf(const platform::SystemVersion& version, bool is_server_r2,
                                     std::uint16_t architecture);

}  // namespace ravo::RavoInterfaceInfo

#pragma once

#include <ravo/platform/system.h>
#include <ravo/sysinfo/os_version.h>

#include <cstdint>

namespace ravo::sysinfo {

/// Returns the kind that a version record names; `osUnknown` for a system newer than the last kind, older
/// than the first, or not Windows.
[[nodiscard]] RavoInterfaceInfo::TOSVersion OSVersionOf(const platform::SystemVersion& version,
                                                        bool is_server_r2, std::uint16_t architecture);

/// Tells whether a kind is one of the NT line.
[[nodiscard]] bool IsNt(RavoInterfaceInfo::TOSVersion kind) noexcept;

}  // namespace ravo::sysinfo

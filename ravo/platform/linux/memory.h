#pragma once

#include <ravo/platform/system.h>

#include <cstdint>
#include <string_view>

namespace ravo::platform::gnu_linux {

/// The figures out of the texts of /proc/meminfo and /proc/self/status. `address_space` is what the process
/// may address, in bytes. A field that is missing counts as 0.
[[nodiscard]] MemoryFigures MemoryFrom(std::string_view meminfo, std::string_view status,
                                       std::uint64_t address_space);

}  // namespace ravo::platform::gnu_linux

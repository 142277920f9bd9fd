#pragma once

#include <ravo/platform/system.h>

#include <cstdint>
#include <string_view>

namespace ravo::platform::gnu_linux {

/// Returns the figures in the texts of /proc/meminfo and /proc/self/status. `address_space` is the size of
/// the process's address space in bytes. A missing field counts as 0.
[[nodiscard]] MemoryFigures MemoryFrom(std::string_view meminfo, std::string_view status,
                                       std::uint64_t address_space);

}  // namespace ravo::platform::gnu_linux

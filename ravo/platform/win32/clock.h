#pragma once

#include <ravo/runtime/date_time.h>

#include <windows.h>

namespace ravo::platform {

/// Returns a calendar record of the system as a date-time; 0 for years beyond 9999, which a damaged file
/// time may have.
[[nodiscard]] DateTime DateTimeOf(const SYSTEMTIME& time);

}  // namespace ravo::platform

#pragma once

#include <ravo/runtime/date_time.h>

#include <windows.h>

namespace ravo::platform {

/// A calendar record of the system as a date-time; 0 for the years beyond 9999 that a damaged file time may
/// tell of.
[[nodiscard]] DateTime DateTimeOf(const SYSTEMTIME& time);

}  // namespace ravo::platform

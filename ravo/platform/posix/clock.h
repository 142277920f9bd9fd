#pragma once

#include <ravo/runtime/date_time.h>

#include <ctime>

namespace ravo::platform::posix {

/// Returns a moment in local time, rounded down to the millisecond; 0 if it is outside the calendar.
[[nodiscard]] DateTime LocalDateTime(const std::timespec& moment);

}  // namespace ravo::platform::posix

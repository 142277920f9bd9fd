#pragma once

#include <ravo/runtime/date_time.h>

#include <ctime>

namespace ravo::platform::posix {

/// A moment in local time, to the millisecond below; 0 for one that the calendar does not reach.
[[nodiscard]] DateTime LocalDateTime(const std::timespec& moment);

}  // namespace ravo::platform::posix

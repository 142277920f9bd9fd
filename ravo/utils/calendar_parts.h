#pragma once

#include <ravo/utils/calendar.h>

namespace ravo::utils {

/// Days of the week, counted from Monday.
inline constexpr std::int32_t kSaturday = 5;
inline constexpr std::int32_t kSunday = 6;

/// The parts of a date as one value.
struct Ymd {
  std::int32_t year = 0;
  std::uint16_t month = 0;
  std::uint16_t day = 0;
};

[[nodiscard]] inline Ymd PartsOf(DIUtils::TJulianDate date) {
  Ymd parts;
  DIUtils::JulianDateToYmd(date, parts.year, parts.month, parts.day);
  return parts;
}

}  // namespace ravo::utils

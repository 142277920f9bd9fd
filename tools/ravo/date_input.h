#pragma once

#include "date_steps.h"
#include <ravo/RavoInterfaceCommon.h>

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tool {

/// A date as people write it: a day, perhaps with a time, and steps from there.
struct DateInput {
  ravo::DateTimeParts start;
  std::vector<DateStep> steps;
};

/// Why a text is no date, for people.
struct DateFault {
  std::string message;
};

/// Returns the date that a UTF-8 text is as a whole.
///
/// A day is "2026-11-21", "21.11.2026", "21. 11. 2026", "20261121", "today", "tomorrow", "yesterday" or their
/// Czech words; the first three may be followed by a time "13:05", "13:05:09" or "13:05:09.007". Steps are
/// days, weeks, months or years: "+14d", "-2w", "+1m", "+1y"; Czech "t" and "r" are weeks and years. Without
/// a day they start today.
[[nodiscard]] std::variant<DateInput, DateFault> ReadDate(std::string_view utf8,
                                                          const ravo::DateParts& today);

}  // namespace tool

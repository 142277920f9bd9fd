#pragma once

#include <ravo/RavoInterfaceCommon.h>

#include <span>

namespace tool {

/// A step from a date, forward or back.
struct DateStep {
  enum class Unit { Days, Months, Years };
  Unit unit = Unit::Days;
  int count = 0;
};

/// Returns the date after all steps. A run of steps in months and years is one step, and only its end is
/// lowered to the last day of the month: 31 January and two months are 31 March. The time of day is kept.
///
/// Throws `ConvertError` outside the years 1 to 9999.
[[nodiscard]] ravo::DateTimeParts MovedExactly(const ravo::DateTimeParts& start,
                                               std::span<const DateStep> steps);

/// Returns the date after all steps as the suite's modules reach it, month by month and year by year: 31
/// January and two months are 28 March. Such a step drops the time of day. Throws as `MovedExactly` does.
[[nodiscard]] ravo::DateTimeParts MovedAsSuite(const ravo::DateTimeParts& start,
                                               std::span<const DateStep> steps);

}  // namespace tool

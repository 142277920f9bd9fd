#include "date_steps.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace tool {
namespace {

namespace common = ravo::RavoInterfaceCommon;

constexpr int kMonthsOfYear = 12;
constexpr int kLeastYear = 1;
constexpr int kMostYear = 9999;

ravo::DateParts DaysLater(const ravo::DateParts& date, int days) {
  return ravo::SplitDateTime(ravo::EncodeDate(date.year, date.month, date.day) + days).date;
}

ravo::DateParts MonthsLater(const ravo::DateParts& date, std::int64_t months) {
  const std::int64_t count = std::int64_t{date.year} * kMonthsOfYear + date.month - 1 + months;
  const std::int64_t year = count / kMonthsOfYear;
  if (year < kLeastYear || year > kMostYear) throw ravo::ConvertError(u"");
  const int month = static_cast<int>(count % kMonthsOfYear) + 1;
  return {static_cast<int>(year), month,
          std::min<int>(date.day, common::DaysPerMonth(static_cast<int>(year), month))};
}

std::int64_t MonthsOf(const DateStep& step) {
  return std::int64_t{step.count} * (step.unit == DateStep::Unit::Years ? kMonthsOfYear : 1);
}

ravo::DateTimeParts SuiteStepped(const ravo::DateTimeParts& when, const DateStep& step) {
  if (step.unit == DateStep::Unit::Days) return {DaysLater(when.date, step.count), when.time};
  const auto change = step.unit == DateStep::Unit::Years ? common::ChangeYear : common::ChangeMonth;
  ravo::DateTime date = ravo::EncodeDateTime(when);
  for (int i = 0; i < std::abs(step.count); ++i) date = change(date, step.count);
  return ravo::SplitDateTime(date);
}

}  // namespace

ravo::DateTimeParts MovedExactly(const ravo::DateTimeParts& start, std::span<const DateStep> steps) {
  ravo::DateParts date = start.date;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    if (steps[i].unit == DateStep::Unit::Days) {
      date = DaysLater(date, steps[i].count);
      continue;
    }
    std::int64_t months = MonthsOf(steps[i]);
    while (i + 1 < steps.size() && steps[i + 1].unit != DateStep::Unit::Days) months += MonthsOf(steps[++i]);
    date = MonthsLater(date, months);
  }
  return {date, start.time};
}

ravo::DateTimeParts MovedAsSuite(const ravo::DateTimeParts& start, std::span<const DateStep> steps) {
  ravo::DateTimeParts when = start;
  for (const DateStep& step : steps) when = SuiteStepped(when, step);
  return when;
}

}  // namespace tool

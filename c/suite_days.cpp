#include "support.h"
#include <ravo/common/calendar.h>
#include <ravo/czech/day.h>
#include <ravo/runtime/text.h>

using ravo::c::Computed;
using ravo::c::FailNullResult;
using ravo::c::FailRange;
using ravo::c::Guarded;
using ravo::c::kNoMoment;
using ravo::c::WriteText;
namespace suite = ravo::RavoInterfaceCommon;
namespace czech = ravo::czech;

namespace {

constexpr std::int32_t kSecond = 1000;
constexpr std::int32_t kMinute = 60 * kSecond;
constexpr std::int32_t kHour = 60 * kMinute;
constexpr std::int32_t kDay = 24 * kHour;

ravo::TimeParts TimeOf(std::int32_t milliseconds) {
  return {milliseconds / kHour, milliseconds % kHour / kMinute, milliseconds % kMinute / kSecond,
          milliseconds % kSecond};
}

std::int32_t MillisecondsOf(const ravo::TimeParts& time) {
  return time.hour * kHour + time.minute * kMinute + time.second * kSecond + time.millisecond;
}

template <class Form>
ravo_status Sql(const ravo::c::TextOut& out, ravo_error* error, Form form,
                std::string_view out_of_range = kNoMoment) {
  return Guarded(
      error, [&] { return WriteText(out, ravo::ToUtf8(form()), error); }, out_of_range);
}

// Writes the moment that `change` makes of another one.
template <class Change>
ravo_status Changed(ravo_suite_moment moment, ravo_suite_moment* result, ravo_error* error, Change change) {
  if (result == nullptr) return FailNullResult(error);
  const auto split = [&] { return static_cast<void>(ravo::SplitDateTime(moment)), RAVO_OK; };
  if (const ravo_status status = Guarded(error, split, kNoMoment); status != RAVO_OK) return status;
  return Computed(
      result, error, [&] { return change(moment); }, "the result is not in the years 1 to 9999");
}

}  // namespace

ravo_status ravo_suite_moment_of(ravo_day day, int32_t milliseconds, ravo_suite_moment* moment,
                                 ravo_error* error) {
  if (!czech::InCalendar({day})) return FailRange(error, "the day is not in the years 1 to 9999");
  if (milliseconds < 0 || milliseconds >= kDay)
    return FailRange(error, "the milliseconds are not 0 to 86399999");
  return Computed(moment, error, [&] {
    return ravo::EncodeDateTime({czech::PartsOf({day}), TimeOf(milliseconds)});
  });
}

ravo_status ravo_suite_moment_parts(ravo_suite_moment moment, ravo_day* day, int32_t* milliseconds,
                                    ravo_error* error) {
  if (day == nullptr || milliseconds == nullptr) return FailNullResult(error);
  return Guarded(
      error,
      [&] {
        const ravo::DateTimeParts parts = ravo::SplitDateTime(moment);
        *day = czech::DayOf(parts.date).number;
        *milliseconds = MillisecondsOf(parts.time);
        return RAVO_OK;
      },
      kNoMoment);
}

ravo_status ravo_suite_sql_date(ravo_suite_moment moment, char* buffer, size_t size, size_t* length,
                                ravo_error* error) {
  return Sql({buffer, size, length}, error, [&] { return suite::DateToSQLString(moment); });
}

ravo_status ravo_suite_sql_time(ravo_suite_moment moment, char* buffer, size_t size, size_t* length,
                                ravo_error* error) {
  return Sql(
      {buffer, size, length}, error, [&] { return suite::TimeToSQLString(moment); },
      "the moment is not finite");
}

ravo_status ravo_suite_sql_date_time(ravo_suite_moment moment, char* buffer, size_t size, size_t* length,
                                     ravo_error* error) {
  return Sql({buffer, size, length}, error, [&] { return suite::DateTimeToSQLString(moment); });
}

ravo_status ravo_suite_change_month(ravo_suite_moment moment, int32_t step, ravo_suite_moment* result,
                                    ravo_error* error) {
  return Changed(moment, result, error, [step](double from) { return suite::ChangeMonth(from, step); });
}

ravo_status ravo_suite_change_year(ravo_suite_moment moment, int32_t step, ravo_suite_moment* result,
                                   ravo_error* error) {
  return Changed(moment, result, error, [step](double from) { return suite::ChangeYear(from, step); });
}

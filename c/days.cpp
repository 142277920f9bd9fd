#include "support.h"
#include <ravo/czech/day.h>

using ravo::c::Fail;
using ravo::c::FailArgument;
namespace czech = ravo::czech;

ravo_status ravo_day_of(int32_t year, int32_t month, int32_t day_of_month, ravo_day* day, ravo_error* error) {
  if (day == nullptr) return FailArgument(error, "the result is null");
  const ravo::DateParts date{year, month, day_of_month};
  if (!czech::Exists(date)) return Fail(error, {RAVO_RANGE, 0, 0, "there is no such date"});
  *day = czech::DayOf(date).number;
  return RAVO_OK;
}

ravo_status ravo_date_of(ravo_day day, ravo_date* date, ravo_error* error) {
  if (date == nullptr) return FailArgument(error, "the result is null");
  if (!czech::InCalendar({day}))
    return Fail(error, {RAVO_RANGE, 0, 0, "the day is not in the years 1 to 9999"});
  const ravo::DateParts parts = czech::PartsOf({day});
  *date = {parts.year, parts.month, parts.day};
  return RAVO_OK;
}

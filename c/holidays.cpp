#include "support.h"
#include <ravo/czech/holidays.h>

using ravo::c::FailNullResult;
using ravo::c::FailRange;
using ravo::c::FailRefused;
using ravo::c::FailStruct;
using ravo::c::FailUnknown;
using ravo::c::Fill;
using ravo::c::IsKnown;
namespace czech = ravo::czech;

namespace {

ravo_status FillHoliday(ravo_holiday* holiday, const czech::Holiday& row) {
  Fill(*holiday, {0, row.czech.data(), row.english.data(), row.law.data(), row.first_year, row.last_year,
                  row.month, row.day});
  return RAVO_OK;
}

ravo_status FillTerm(ravo_term* term, const czech::Parsed<czech::Term>& answer, ravo_error* error) {
  if (!answer) return FailRefused(error, answer.code, 0);
  Fill(*term, {0, answer.value.counted.number, answer.value.due.number, answer.value.verified});
  return RAVO_OK;
}

}  // namespace

size_t ravo_holiday_count(void) { return czech::Holidays().size(); }

ravo_status ravo_holiday_at(size_t index, ravo_holiday* holiday, ravo_error* error) {
  if (!IsKnown(holiday)) return FailStruct(error);
  if (index >= czech::Holidays().size()) return FailUnknown(error, "there are fewer holidays");
  return FillHoliday(holiday, czech::Holidays()[index]);
}

ravo_status ravo_holiday_day(size_t index, int32_t year, ravo_day* day, ravo_error* error) {
  if (day == nullptr) return FailNullResult(error);
  if (index >= czech::Holidays().size()) return FailUnknown(error, "there are fewer holidays");
  const czech::Holiday& row = czech::Holidays()[index];
  if (year < row.first_year || year > row.last_year)
    return FailRange(error, "the holiday does not hold in that year");
  *day = czech::DayOfHoliday(row, year).number;
  return RAVO_OK;
}

ravo_status ravo_holiday_on(ravo_day day, size_t nth, ravo_holiday* holiday, ravo_error* error) {
  if (!IsKnown(holiday)) return FailStruct(error);
  if (!czech::InCalendar({day})) return FailRange(error, "the day is not in the years 1 to 9999");
  const czech::HolidaysOfDay found = czech::HolidaysOn({day});
  if (nth >= found.count) return FailUnknown(error, "the day has fewer holidays");
  return FillHoliday(holiday, *found.rows[nth]);
}

ravo_status ravo_easter_sunday(int32_t year, ravo_day* day, ravo_error* error) {
  if (day == nullptr) return FailNullResult(error);
  if (year < 1583 || year > 9999) return FailRange(error, "the year is not 1583 to 9999");
  *day = czech::EasterSunday(year).number;
  return RAVO_OK;
}

int32_t ravo_is_working_day(ravo_day day) { return czech::IsWorkingDay({day}); }

ravo_status ravo_next_working_day(ravo_day day, ravo_day* working_day, ravo_error* error) {
  if (working_day == nullptr) return FailNullResult(error);
  const auto answer = czech::NextWorkingDay({day});
  if (!answer) return FailRefused(error, answer.code, 0);
  *working_day = answer.value.number;
  return RAVO_OK;
}

ravo_status ravo_working_days_between(ravo_day from, ravo_day to, int32_t* days, ravo_error* error) {
  if (days == nullptr) return FailNullResult(error);
  const auto answer = czech::WorkingDaysBetween({from}, {to});
  if (!answer) return FailRefused(error, answer.code, 0);
  *days = answer.value;
  return RAVO_OK;
}

ravo_status ravo_term_in_days(ravo_day from, int32_t days, ravo_term* term, ravo_error* error) {
  if (!IsKnown(term)) return FailStruct(error);
  return FillTerm(term, czech::TermInDays({from}, days), error);
}

ravo_status ravo_term_in_months(ravo_day from, int32_t months, ravo_term* term, ravo_error* error) {
  if (!IsKnown(term)) return FailStruct(error);
  return FillTerm(term, czech::TermInMonths({from}, months), error);
}

ravo_status ravo_days_overdue(ravo_day due, ravo_day today, int32_t* days, ravo_error* error) {
  if (days == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({due}) || !czech::InCalendar({today}))
    return FailRange(error, "a day is not in the years 1 to 9999");
  *days = czech::DaysOverdue({due}, {today});
  return RAVO_OK;
}

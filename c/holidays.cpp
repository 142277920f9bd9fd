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

ravo_status FailFrom(ravo_error* error) { return FailRange(error, "`from` is not in the years 1 to 9999"); }

// Writes the term that `compute` returns for a day.
template <class Compute>
ravo_status FillTerm(ravo_day from, ravo_term* term, ravo_error* error, Compute compute) {
  if (!IsKnown(term)) return FailStruct(error);
  if (!czech::InCalendar({from})) return FailFrom(error);
  const czech::Parsed<czech::Term> answer = compute(czech::Day{from});
  if (!answer) return FailRange(error, "the result is not in the years 1 to 9999");
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
  if (!czech::InCalendar({from})) return FailFrom(error);
  if (!czech::InCalendar({to})) return FailRange(error, "`to` is not in the years 1 to 9999");
  *days = czech::WorkingDaysBetween({from}, {to}).value;
  return RAVO_OK;
}

ravo_status ravo_term_in_days(ravo_day from, int32_t days, ravo_term* term, ravo_error* error) {
  return FillTerm(from, term, error, [days](czech::Day day) { return czech::TermInDays(day, days); });
}

ravo_status ravo_term_in_months(ravo_day from, int32_t months, ravo_term* term, ravo_error* error) {
  return FillTerm(from, term, error, [months](czech::Day day) { return czech::TermInMonths(day, months); });
}

ravo_status ravo_days_overdue(ravo_day due, ravo_day today, int32_t* days, ravo_error* error) {
  if (days == nullptr) return FailNullResult(error);
  if (!czech::InCalendar({due})) return FailRange(error, "`due` is not in the years 1 to 9999");
  if (!czech::InCalendar({today})) return FailRange(error, "`today` is not in the years 1 to 9999");
  *days = czech::DaysOverdue({due}, {today});
  return RAVO_OK;
}

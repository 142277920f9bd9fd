#include "chapters.h"
#include "expect.h"

static void of_a_day_are_told(void) {
  ravo_holiday holiday = RAVO_HOLIDAY_INIT;
  EXPECT(ravo_holiday_on(day_of(2026, 1, 1), 0, &holiday, NULL) == RAVO_OK);
  EXPECT(ravo_holiday_on(day_of(2026, 1, 1), 1, &holiday, NULL) == RAVO_OK);
  EXPECT(ravo_holiday_on(day_of(2026, 1, 1), 2, &holiday, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_holiday_on(day_of(2026, 4, 3), 0, &holiday, NULL) == RAVO_OK);
  EXPECT_TEXT(holiday.czech, "Velký pátek");
  EXPECT_TEXT(holiday.english, "Good Friday");
  EXPECT_TEXT(holiday.law, "359/2015");
  EXPECT(holiday.first_year == 2016 && holiday.last_year == 9999 && holiday.month == 0 && holiday.day == -2);
  EXPECT(ravo_holiday_on(day_of(2026, 11, 18), 0, &holiday, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_holiday_on(0, 0, &holiday, NULL) == RAVO_RANGE);
}

static void stand_in_rows(void) {
  ravo_holiday holiday = RAVO_HOLIDAY_INIT;
  ravo_holiday found = RAVO_HOLIDAY_INIT;
  ravo_day day = 0;
  size_t index = 0;
  for (; index < ravo_holiday_count(); ++index) {
    EXPECT(ravo_holiday_at(index, &holiday, NULL) == RAVO_OK);
    EXPECT(ravo_holiday_day(index, holiday.first_year, &day, NULL) == RAVO_OK);
    EXPECT(ravo_holiday_on(day, 0, &found, NULL) == RAVO_OK);
    EXPECT(ravo_holiday_day(index, holiday.first_year - 1, &day, NULL) == RAVO_RANGE);
  }
  EXPECT(index == 26);
  EXPECT(ravo_holiday_at(index, &holiday, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_holiday_day(index, 2026, &day, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_easter_sunday(2026, &day, NULL) == RAVO_OK && day == day_of(2026, 4, 5));
  EXPECT(ravo_easter_sunday(1582, &day, NULL) == RAVO_RANGE);
}

static void are_no_working_days(void) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_day day = 0;
  int32_t days = 0;
  EXPECT(ravo_is_working_day(day_of(2026, 11, 20)) == 1);
  EXPECT(ravo_is_working_day(day_of(2026, 11, 17)) == 0);
  EXPECT(ravo_is_working_day(INT32_MIN) == 0);
  EXPECT(ravo_next_working_day(day_of(2026, 4, 3), &day, NULL) == RAVO_OK && day == day_of(2026, 4, 7));
  EXPECT(ravo_next_working_day(0, &day, NULL) == RAVO_RANGE);
  EXPECT(ravo_working_days_between(day_of(2026, 4, 2), day_of(2026, 4, 8), &days, NULL) == RAVO_OK);
  EXPECT(days == 2);
  EXPECT(ravo_working_days_between(day_of(2026, 4, 8), day_of(2026, 4, 2), &days, NULL) == RAVO_OK);
  EXPECT(days == -2);
  EXPECT_RANGE(ravo_working_days_between(0, 0, &days, &error), "`from` is not in the years 1 to 9999");
  EXPECT_RANGE(ravo_working_days_between(day_of(1, 1, 1), 0, &days, &error),
               "`to` is not in the years 1 to 9999");
  EXPECT(days == -2);
}

static void put_off_the_ends_of_terms(void) {
  static const char from[] = "`from` is not in the years 1 to 9999";
  static const char result[] = "the result is not in the years 1 to 9999";
  ravo_error error = RAVO_ERROR_INIT;
  ravo_term term = RAVO_TERM_INIT;
  int32_t days = 0;
  EXPECT(ravo_term_in_days(day_of(2026, 11, 7), 14, &term, NULL) == RAVO_OK);
  EXPECT(term.counted == day_of(2026, 11, 21) && term.due == day_of(2026, 11, 23) && term.verified == 1);
  EXPECT(ravo_term_in_months(day_of(2026, 1, 31), 1, &term, NULL) == RAVO_OK);
  EXPECT(term.counted == day_of(2026, 2, 28) && term.due == day_of(2026, 3, 2));
  EXPECT_RANGE(ravo_term_in_days(day_of(2026, 11, 7), INT32_MAX, &term, &error), result);
  EXPECT(error.code == 0);
  EXPECT_RANGE(ravo_term_in_days(0, 14, &term, &error), from);
  EXPECT_RANGE(ravo_term_in_months(day_of(9999, 12, 31), 1, &term, &error), result);
  EXPECT_RANGE(ravo_term_in_months(0, 1, &term, &error), from);
  EXPECT(ravo_days_overdue(day_of(2026, 11, 20), day_of(2026, 11, 22), &days, NULL) == RAVO_OK && days == 2);
  EXPECT(ravo_days_overdue(day_of(2026, 11, 22), day_of(2026, 11, 20), &days, NULL) == RAVO_OK && days == 0);
  EXPECT_RANGE(ravo_days_overdue(INT32_MIN, INT32_MAX, &days, &error), "`due` is not in the years 1 to 9999");
  EXPECT_RANGE(ravo_days_overdue(day_of(1, 1, 1), INT32_MAX, &days, &error),
               "`today` is not in the years 1 to 9999");
}

void test_holidays(void) {
  of_a_day_are_told();
  stand_in_rows();
  are_no_working_days();
  put_off_the_ends_of_terms();
}

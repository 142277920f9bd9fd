#include "chapters.h"
#include "expect.h"

static void count_from_a_known_one(void) {
  ravo_day day = 0;
  ravo_date date = {0, 0, 0};
  EXPECT(ravo_day_of(2000, 1, 1, &day, NULL) == RAVO_OK);
  EXPECT(day == 2451545);
  EXPECT(ravo_date_of(day + 59, &date, NULL) == RAVO_OK);
  EXPECT(date.year == 2000 && date.month == 2 && date.day == 29);
}

static void that_do_not_exist_are_refused(void) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_day day = 7;
  ravo_date date = {7, 7, 7};
  EXPECT_RANGE(ravo_day_of(0, 13, 32, &day, &error), "the year is not 1 to 9999");
  EXPECT_RANGE(ravo_day_of(10000, 1, 1, &day, &error), "the year is not 1 to 9999");
  EXPECT_RANGE(ravo_day_of(2026, 0, 0, &day, &error), "the month is not 1 to 12");
  EXPECT_RANGE(ravo_day_of(2026, 13, 1, &day, &error), "the month is not 1 to 12");
  EXPECT_RANGE(ravo_day_of(2026, 2, 29, &day, &error), "the month has no such day");
  EXPECT_RANGE(ravo_day_of(2026, 2, 0, &day, &error), "the month has no such day");
  EXPECT(day == 7);
  EXPECT_RANGE(ravo_date_of(0, &date, &error), "the day is not in the years 1 to 9999");
  EXPECT(date.year == 7);
}

static void have_weeks(void) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_week week = {0, 0};
  ravo_day day = 0;
  int32_t weekday = 9;
  EXPECT(ravo_weekday_of(day_of(2026, 11, 22), &weekday, NULL) == RAVO_OK);
  EXPECT(weekday == 6);
  EXPECT(ravo_week_of(day_of(2021, 1, 3), &week, NULL) == RAVO_OK);
  EXPECT(week.year == 2020 && week.week == 53);
  EXPECT(ravo_week_of(day_of(2024, 12, 30), &week, NULL) == RAVO_OK);
  EXPECT(week.year == 2025 && week.week == 1);
  EXPECT(ravo_day_of_week(2020, 53, &day, NULL) == RAVO_OK);
  EXPECT(day == day_of(2020, 12, 28));
  EXPECT_RANGE(ravo_day_of_week(2021, 53, &day, &error), "the year has no such week");
  EXPECT_RANGE(ravo_day_of_week(2021, 0, &day, &error), "the year has no such week");
  EXPECT_RANGE(ravo_day_of_week(INT32_MAX, 1, &day, &error), "the year is not 1 to 9999");
  EXPECT(ravo_week_of(day_of(9999, 12, 31), &week, NULL) == RAVO_OK);
  EXPECT(week.year == 9999 && week.week == 52);
}

static void have_months(void) {
  static const char result[] = "the result is not in the years 1 to 9999";
  ravo_error error = RAVO_ERROR_INIT;
  ravo_day day = 0;
  int32_t days = 0;
  EXPECT(ravo_is_leap_year(2000) && !ravo_is_leap_year(1900) && !ravo_is_leap_year(2026));
  EXPECT(ravo_days_in_month(2024, 2, &days, NULL) == RAVO_OK && days == 29);
  EXPECT_RANGE(ravo_days_in_month(2024, 13, &days, &error), "the month is not 1 to 12");
  EXPECT_RANGE(ravo_days_in_month(10000, 12, &days, &error), "the year is not 1 to 9999");
  EXPECT(ravo_month_begin(day_of(2024, 2, 10), &day, NULL) == RAVO_OK && day == day_of(2024, 2, 1));
  EXPECT(ravo_month_end(day_of(2024, 2, 10), &day, NULL) == RAVO_OK && day == day_of(2024, 2, 29));
  EXPECT(ravo_add_months(day_of(2023, 12, 31), 2, &day, NULL) == RAVO_OK && day == day_of(2024, 2, 29));
  EXPECT(ravo_add_months(day_of(2024, 1, 31), -2, &day, NULL) == RAVO_OK && day == day_of(2023, 11, 30));
  EXPECT_RANGE(ravo_add_months(day_of(1, 1, 1), -1, &day, &error), result);
  EXPECT_RANGE(ravo_add_months(day_of(9999, 12, 31), INT32_MAX, &day, &error), result);
  EXPECT_RANGE(ravo_add_months(day_of(1, 1, 1), INT32_MIN, &day, &error), result);
  EXPECT_RANGE(ravo_add_months(0, 0, &day, &error), "the day is not in the years 1 to 9999");
}

static void are_written_in_three_forms(void) {
  char text[RAVO_DATE_SIZE];
  const ravo_day day = day_of(2026, 3, 5);
  EXPECT(ravo_day_format(day, RAVO_DATE_ISO, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "2026-03-05");
  EXPECT(ravo_day_format(day, RAVO_DATE_CZECH, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "5. 3. 2026");
  EXPECT(ravo_day_format(day, RAVO_DATE_COMPACT, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "20260305");
  EXPECT(ravo_day_format(day_of(33, 12, 31), RAVO_DATE_CZECH, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "31. 12. 0033");
}

static void are_read_as_people_write_them(void) {
  static const char* const same[] = {"2026-03-05",
                                     "5. 3. 2026",
                                     "05.03.2026",
                                     " 5.3.2026\n",
                                     "20260305",
                                     "5.\xC2\xA0"
                                     "3.\xC2\xA0"
                                     "2026",
                                     "2026-3-5"};
  static const char* const none[] = {"", "5. 3.", "2026-03-05T10", "26-03-05", "202603051", "x", "5.3.26"};
  ravo_error error = RAVO_ERROR_INIT;
  ravo_day day = 0;
  size_t i = 0;
  for (i = 0; i < sizeof same / sizeof *same; ++i) {
    day = 0;
    EXPECT(ravo_day_read(same[i], RAVO_NUL_TERMINATED, &day, NULL) == RAVO_OK);
    EXPECT(day == day_of(2026, 3, 5));
  }
  for (i = 0; i < sizeof none / sizeof *none; ++i) {
    EXPECT(ravo_day_read(none[i], RAVO_NUL_TERMINATED, &day, &error) == RAVO_WRONG);
    EXPECT(error.code == 0);
  }
  EXPECT_RANGE(ravo_day_read("29.2.2026", RAVO_NUL_TERMINATED, &day, &error), "there is no such date");
  EXPECT(ravo_day_read("0000-01-01", RAVO_NUL_TERMINATED, &day, NULL) == RAVO_RANGE);
}

void test_days(void) {
  count_from_a_known_one();
  that_do_not_exist_are_refused();
  have_weeks();
  have_months();
  are_written_in_three_forms();
  are_read_as_people_write_them();
}

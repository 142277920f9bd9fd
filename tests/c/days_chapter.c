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
  EXPECT(ravo_day_of(2026, 2, 29, &day, &error) == RAVO_RANGE);
  EXPECT_TEXT(error.message, "there is no such date");
  EXPECT(day == 7);
  EXPECT(ravo_date_of(0, &date, &error) == RAVO_RANGE);
  EXPECT(date.year == 7);
}

void test_days(void) {
  count_from_a_known_one();
  that_do_not_exist_are_refused();
}

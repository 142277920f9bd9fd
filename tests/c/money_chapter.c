#include "chapters.h"
#include "expect.h"

static void is_written_and_read(void) {
  char text[RAVO_MONEY_SIZE];
  ravo_error error = RAVO_ERROR_INIT;
  ravo_money amount = 7;
  EXPECT(ravo_money_format(125000, ',', 2, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "12,50");
  EXPECT(ravo_money_format(INT64_MIN, '.', 0, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "-922337203685477.5808");
  EXPECT(ravo_money_format(0, '5', 0, text, sizeof text, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_money_format(0, 0x10D, 0, text, sizeof text, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_money_format(0, '.', 5, text, sizeof text, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_money_read("-922337203685477.5808", RAVO_NUL_TERMINATED, '.', &amount, NULL) == RAVO_OK);
  EXPECT(amount == INT64_MIN);
  EXPECT(ravo_money_read("12,50", 5, '.', &amount, &error) == RAVO_WRONG);
  EXPECT(error.code == 0 && amount == INT64_MIN);
  EXPECT(ravo_money_read("922337203685477.5808", RAVO_NUL_TERMINATED, '.', &amount, NULL) == RAVO_WRONG);
}

static void is_rounded_once(void) {
  ravo_money result = 7;
  ravo_money difference = 7;
  EXPECT(ravo_money_round(10050, 100, RAVO_ROUND_HALF_AWAY, &result, NULL) == RAVO_OK && result == 10100);
  EXPECT(ravo_money_round(-10001, 10000, RAVO_ROUND_AWAY, &result, NULL) == RAVO_OK && result == -20000);
  EXPECT(ravo_money_round(-19999, 10000, RAVO_ROUND_TOWARD, &result, NULL) == RAVO_OK && result == -10000);
  EXPECT(ravo_money_times_ratio(1210000, 21, 121, 100, RAVO_ROUND_HALF_AWAY, &result, NULL) == RAVO_OK);
  EXPECT(result == 210000);
  EXPECT(ravo_money_times_rate(1000000, 2100, 100, RAVO_ROUND_HALF_AWAY, &result, NULL) == RAVO_OK);
  EXPECT(result == 210000);
  EXPECT(ravo_money_to_crowns(125000, RAVO_ROUND_HALF_AWAY, &result, &difference, NULL) == RAVO_OK);
  EXPECT(result == 130000 && difference == 5000);
}

static void out_of_range_is_refused(void) {
  static const char step[] = "the step is not above 0";
  static const char divisor[] = "the denominator times the step does not fit 64 bits";
  static const char product[] = "the result does not fit 64 bits";
  const ravo_rounding away = RAVO_ROUND_AWAY;
  ravo_error error = RAVO_ERROR_INIT;
  ravo_money result = 7;
  EXPECT_RANGE(ravo_money_round(1, 0, away, &result, &error), step);
  EXPECT_RANGE(ravo_money_round(INT64_MAX, 10000, away, &result, &error), product);
  EXPECT_RANGE(ravo_money_times_ratio(1, 1, 0, -1, away, &result, &error), step);
  EXPECT_RANGE(ravo_money_times_ratio(1, 1, 0, 1, away, &result, &error), "the denominator is 0");
  EXPECT_RANGE(ravo_money_times_ratio(1, 1, INT64_MIN, 2, away, &result, &error), divisor);
  EXPECT_RANGE(ravo_money_times_ratio(1, 1, INT64_MAX, 3, away, &result, &error), divisor);
  EXPECT(ravo_money_times_ratio(0, 1, INT64_MAX, 2, away, &result, &error) == RAVO_OK && result == 0);
  result = 7;
  EXPECT_RANGE(ravo_money_times_ratio(2, INT64_MAX, 1, 1, away, &result, &error), product);
  EXPECT_RANGE(ravo_money_times_rate(1, 1, 0, away, &result, &error), step);
  EXPECT_RANGE(ravo_money_times_rate(1, 1, INT64_MAX, away, &result, &error), "the step is too large");
  EXPECT_RANGE(ravo_money_times_rate(INT64_MAX, 20000, 1, away, &result, &error), product);
  EXPECT(ravo_money_to_crowns(INT64_MAX, RAVO_ROUND_AWAY, &result, &result, NULL) == RAVO_RANGE);
  EXPECT(result == 7);
}

void test_money(void) {
  is_written_and_read();
  is_rounded_once();
  out_of_range_is_refused();
}

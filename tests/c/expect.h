#ifndef RAVO_TESTS_EXPECT_H
#define RAVO_TESTS_EXPECT_H

#include <ravo.h>
#include <stdio.h>
#include <string.h>

/* How many expectations did not hold. */
extern int failures;

/* Reports a condition that does not hold. */
#define EXPECT(condition) \
  ((condition) ? (void)0 : (void)(printf("%s:%d: %s\n", __FILE__, __LINE__, #condition), ++failures))

#define EXPECT_TEXT(found, expected) EXPECT(strcmp((found), (expected)) == 0)

/* A call with the error `error` that refuses a number and says why. */
#define EXPECT_RANGE(call, words) (EXPECT((call) == RAVO_RANGE), EXPECT_TEXT(error.message, (words)))

/* A literal and its length. */
#define TEXT(literal) (literal), sizeof(literal) - 1

/* The day of a date that exists. */
ravo_day day_of(int32_t year, int32_t month, int32_t day_of_month);

#endif

#ifndef RAVO_TESTS_EXPECT_H
#define RAVO_TESTS_EXPECT_H

#include <stdio.h>
#include <string.h>

/* How many expectations did not hold. */
extern int failures;

/* Reports a condition that does not hold. */
#define EXPECT(condition) \
  ((condition) ? (void)0 : (void)(printf("%s:%d: %s\n", __FILE__, __LINE__, #condition), ++failures))

#define EXPECT_TEXT(found, expected) EXPECT(strcmp((found), (expected)) == 0)

#endif

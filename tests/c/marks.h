#ifndef RAVO_TESTS_MARKS_H
#define RAVO_TESTS_MARKS_H

#include <string.h>

/* Results are filled with a mark before a call, which a refused one must leave. */
enum { MARK = 0xA5 };

#define FRESH(place) memset(&(place), MARK, sizeof(place))
#define FRESH_STRUCT(place) (FRESH(place), (void)((place).size = sizeof(place)))

#endif

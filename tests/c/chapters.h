#ifndef RAVO_TESTS_CHAPTERS_H
#define RAVO_TESTS_CHAPTERS_H

#include <ravo.h>

/* The tests of ravo.h: one source for each chapter. */
#define TEST_CHAPTERS(CHAPTER) CHAPTER(checks) CHAPTER(days) CHAPTER(columns) CHAPTER(columns_arrow) 

#define TEST_DECLARE(chapter) void test_##chapter(void);
TEST_CHAPTERS(TEST_DECLARE)
#undef TEST_DECLARE

#endif

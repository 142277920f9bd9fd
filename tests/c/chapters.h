#ifndef RAVO_TESTS_CHAPTERS_H
#define RAVO_TESTS_CHAPTERS_H

#include <ravo.h>

/* The tests of ravo.h: one source for each chapter. */
#define TEST_CHAPTERS(CHAPTER)                                                                        \
  CHAPTER(checks)                                                                                     \
  CHAPTER(numbers)                                                                                    \
  CHAPTER(banks)                                                                                      \
  CHAPTER(days)                                                                                       \
  CHAPTER(holidays)                                                                                   \
  CHAPTER(money)                                                                                      \
  CHAPTER(vat)                                                                                        \
  CHAPTER(payment_codes) CHAPTER(invoices) CHAPTER(suite) CHAPTER(catalogue) CHAPTER(texts)           \
      CHAPTER(checksums) CHAPTER(encodings) CHAPTER(columns) CHAPTER(columns_arrow) CHAPTER(refusals) \
          CHAPTER(memory)

#define TEST_DECLARE(chapter) void test_##chapter(void);
TEST_CHAPTERS(TEST_DECLARE)
#undef TEST_DECLARE

#endif

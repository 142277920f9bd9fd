#include "chapters.h"
#include "expect.h"

int failures = 0;

ravo_day day_of(int32_t year, int32_t month, int32_t day_of_month) {
  ravo_day day = 0;
  EXPECT(ravo_day_of(year, month, day_of_month, &day, NULL) == RAVO_OK);
  return day;
}

int main(void) {
  /* What failed is told even if the program ends early. */
  setbuf(stdout, NULL);
#define TEST_CHAPTER(chapter) test_##chapter();
#include "chapters.inc"
#undef TEST_CHAPTER
  return failures == 0 ? 0 : 1;
}

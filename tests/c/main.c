#include "chapters.h"
#include "expect.h"

int failures = 0;

int main(void) {
#define TEST_RUN(chapter) test_##chapter();
  TEST_CHAPTERS(TEST_RUN)
  return failures == 0 ? 0 : 1;
}

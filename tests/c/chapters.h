#ifndef RAVO_TESTS_CHAPTERS_H
#define RAVO_TESTS_CHAPTERS_H

#include <ravo.h>

#define TEST_CHAPTER(chapter) void test_##chapter(void);
#include "chapters.inc"
#undef TEST_CHAPTER

#endif

#ifndef RAVO_TEST_OPERATION_ROWS
#define RAVO_TEST_OPERATION_ROWS

/* The operations that the servers of these tests give the interfaces: as many as each declares, by number.
 * ROW(what, number) becomes one of them; `what` is handed on. This file is for C++ and for the compiler of
 * type libraries. */
#define TEST_ROWS_TO_8(ROW, what, tens)                                                                   \
  ROW(what, tens##1) ROW(what, tens##2) ROW(what, tens##3) ROW(what, tens##4) ROW(what, tens##5)          \
  ROW(what, tens##6) ROW(what, tens##7) ROW(what, tens##8)
#define TEST_ROWS_OF_TEN(ROW, what, tens) ROW(what, tens##0) TEST_ROWS_TO_8(ROW, what, tens) ROW(what, tens##9)

#define TEST_ROWS_18(ROW, what) \
  TEST_ROWS_TO_8(ROW, what, ) ROW(what, 9) ROW(what, 10) TEST_ROWS_TO_8(ROW, what, 1)
#define TEST_ROWS_78(ROW, what)                                                                            \
  TEST_ROWS_TO_8(ROW, what, ) ROW(what, 9) TEST_ROWS_OF_TEN(ROW, what, 1) TEST_ROWS_OF_TEN(ROW, what, 2)   \
  TEST_ROWS_OF_TEN(ROW, what, 3) TEST_ROWS_OF_TEN(ROW, what, 4) TEST_ROWS_OF_TEN(ROW, what, 5)             \
  TEST_ROWS_OF_TEN(ROW, what, 6) ROW(what, 70) TEST_ROWS_TO_8(ROW, what, 7)

#endif

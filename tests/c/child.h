#ifndef RAVO_TESTS_CHILD_H
#define RAVO_TESTS_CHILD_H

/* 1 if a function ends the program by abort, 0 if it does not, -1 if this system cannot try it in a copy of
 * the program. */
int aborts(void (*function)(void));

#endif

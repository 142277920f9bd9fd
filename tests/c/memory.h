#ifndef RAVO_TESTS_MEMORY_H
#define RAVO_TESTS_MEMORY_H

#include <stddef.h>

/* The allocator of the test program and of the library in it. */

/* 1 if this build counts and denies allocations, else 0. */
extern const int allocations_are_counted;

/* How many allocations there were. */
size_t allocation_count(void);

/* Lets `allowed` more allocations succeed and denies the others. */
void deny_allocations_after(size_t allowed);
void allow_allocations(void);

#endif

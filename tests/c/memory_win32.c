#include "memory.h"

/* The library has its allocator inside, where the program cannot count. */
const int allocations_are_counted = 0;

size_t allocation_count(void) { return 0; }
void deny_allocations_after(size_t allowed) { (void)allowed; }
void allow_allocations(void) {}

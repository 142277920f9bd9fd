#include "memory.h"

static size_t counted = 0;

#ifdef RAVO_SANITIZED
/* A sanitizer brings its own allocator, which must not be replaced. */
const int allocations_are_counted = 0;
void deny_allocations_after(size_t allowed) { (void)allowed; }
void allow_allocations(void) {}
#else
const int allocations_are_counted = 1;
static size_t left = (size_t)-1;

/* The allocator of the C library, by the names under which a program that replaces it still reaches it. */
#if defined(__clang__)
/* The C library's own names for its allocator. */
#pragma clang diagnostic ignored "-Wreserved-identifier"
#endif
extern void* __libc_malloc(size_t size);
extern void* __libc_calloc(size_t count, size_t size);
extern void* __libc_realloc(void* memory, size_t size);

static int is_denied(void) {
  ++counted;
  if (left == (size_t)-1) return 0;
  if (left == 0) return 1;
  --left;
  return 0;
}

/* Only what the program exports replaces the C library's. */
#pragma GCC visibility push(default)
void* malloc(size_t size) { return is_denied() ? NULL : __libc_malloc(size); }
void* calloc(size_t count, size_t size) { return is_denied() ? NULL : __libc_calloc(count, size); }
void* realloc(void* memory, size_t size) { return is_denied() ? NULL : __libc_realloc(memory, size); }
#pragma GCC visibility pop

void deny_allocations_after(size_t allowed) { left = allowed; }
void allow_allocations(void) { left = (size_t)-1; }
#endif

size_t allocation_count(void) { return counted; }

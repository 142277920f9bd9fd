#include "chapters.h"
#include "expect.h"
#include "marks.h"
#include "memory.h"
#include "random_keys.h"
#include "small_document.h"
#include "small_invoice.h"

/* A good call of a function. */
typedef struct memory_call {
  const char* name;
  ravo_status (*call)(void);
  int never_allocates; /* says its comment */
} memory_call;

#include "generated/memory_calls.inc"

static void check_promise(const memory_call* row) {
  const size_t before = allocation_count();
  ravo_status status = row->call();
  const size_t allocations = allocation_count() - before;
  if (status == RAVO_OK && (allocations == 0 || !row->never_allocates)) return;
  printf("%s: status %d, %u allocations\n", row->name, status, (unsigned)allocations);
  ++failures;
}

/* Denies the first allocation and all later ones, then the second and all later ones, until none is left. */
static void check_survival(const memory_call* row) {
  enum { MOST = 1000 };
  size_t allowed = 0;
  ravo_status status = RAVO_MEMORY;
  for (allowed = 0; status == RAVO_MEMORY && allowed < MOST; ++allowed) {
    deny_allocations_after(allowed);
    status = row->call();
    allow_allocations();
  }
  if (status == RAVO_OK) return;
  printf("%s: status %d with memory for %u allocations\n", row->name, status, (unsigned)allowed);
  ++failures;
}

void test_memory(void) {
  size_t i = 0;
  for (i = 0; i < sizeof memory_calls / sizeof *memory_calls; ++i) {
    check_promise(&memory_calls[i]);
    check_survival(&memory_calls[i]);
  }
  /* The counter sees what the library allocates; a sanitizer has an allocator of its own. */
  EXPECT(!allocations_are_counted || allocation_count() != 0);
}

#include "chapters.h"
#include "expect.h"
#include "marks.h"
#include "random_keys.h"
#include "small_document.h"
#include "small_invoice.h"

static void check_untouched(const void* place, size_t size, int line) {
  const unsigned char* bytes = (const unsigned char*)place;
  size_t i = 0;
  for (i = 0; i < size; ++i) {
    if (bytes[i] == MARK) continue;
    printf("refusals.inc:%d: a refused call wrote its result\n", line);
    ++failures;
    return;
  }
}

static void check_refused(ravo_status found, ravo_status expected, const ravo_error* error, int line) {
  if (found == expected && error->status == expected && error->message[0] != '\0') return;
  printf("refusals.inc:%d: %d, not %d; error: %d \"%s\"\n", line, found, expected, error->status,
         error->message);
  ++failures;
}

static void forget(ravo_error* error) {
  const ravo_error fresh = RAVO_ERROR_INIT;
  *error = fresh;
}

/* A struct as a caller leaves it who forgot its size. */
static void* without_size(void* place) {
  const size_t none = 0;
  memcpy(place, &none, sizeof none);
  return place;
}

#define unsized(place) without_size(place)
#define UNTOUCHED(place) check_untouched(&(place), sizeof(place), __LINE__)
#define UNTOUCHED_STRUCT(place) \
  check_untouched((const char*)&(place) + sizeof(size_t), sizeof(place) - sizeof(size_t), __LINE__)
#define REFUSED(call, status) (forget(&error), check_refused((call), (status), &error, __LINE__))

#include "generated/refusals.inc"

void test_refusals(void) {
  size_t i = 0;
  for (i = 0; i < sizeof refusals / sizeof *refusals; ++i) refusals[i]();
}

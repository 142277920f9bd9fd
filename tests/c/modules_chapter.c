#include "chapters.h"
#include "expect.h"

/* The modules of the suite's library, in the order of its package. */
static const char* const names[] = {
#include "../support/module_names.inc"
};
enum { COUNT = sizeof names / sizeof *names };

static ravo_suite_module module_at(size_t index) {
  ravo_suite_module module = RAVO_SUITE_MODULE_INIT;
  EXPECT(ravo_suite_module_at(index, &module, NULL) == RAVO_OK);
  return module;
}

static void lists_modules(void) {
  ravo_suite_module module = RAVO_SUITE_MODULE_INIT;
  size_t i = 0;
  EXPECT(ravo_suite_module_count() == COUNT);
  for (i = 0; i < COUNT; ++i) {
    EXPECT_TEXT(module_at(i).name, names[i]);
    EXPECT(module_at(i).is_main == (i == 0));
  }
  EXPECT(ravo_suite_module_at(COUNT, &module, NULL) == RAVO_UNKNOWN);
}

/* Whether a list of names separated by blanks has a name. */
static int has_name(const char* list, const char* name) {
  const size_t length = strlen(name);
  const char* at = list;
  while ((at = strstr(at, name)) != NULL) {
    if ((at == list || at[-1] == ' ') && (at[length] == ' ' || at[length] == '\0')) return 1;
    at += length;
  }
  return 0;
}

static void starts_what_a_module_uses_before_it(void) {
  int seen[COUNT] = {0};
  size_t i = 0;
  size_t j = 0;
  for (i = 0; i < COUNT; ++i) {
    const ravo_suite_module module = module_at(i);
    EXPECT(module.order >= 0 && module.order < COUNT && seen[module.order]++ == 0);
    for (j = 0; j < COUNT; ++j) EXPECT(!has_name(module.uses, names[j]) || module_at(j).order < module.order);
  }
  EXPECT(module_at(0).order == COUNT - 1);
  EXPECT_TEXT(module_at(2).uses, "");
  EXPECT(has_name(module_at(14).uses, "ECXMLTokenizer"));
}

void test_modules(void) {
  lists_modules();
  starts_what_a_module_uses_before_it();
}

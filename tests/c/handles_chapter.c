#include "chapters.h"
#include "child.h"
#include "expect.h"
#include "small_invoice.h"

/* Null is no fault of a close. The generated refusals try closed handles in every function that has a status.
 */
static void close_takes_null(void) {
  ravo_bank_list_close(NULL);
  ravo_invoice_close(NULL);
  ravo_random_close(NULL);
  ravo_converter_close(NULL);
  ravo_document_close(NULL);
  ravo_suite_tree_close(NULL);
}

#ifdef RAVO_CHECK_HANDLES
static ravo_bank_list* closed_list(void) {
  ravo_bank_list* list = NULL;
  EXPECT(ravo_bank_list_open(TEXT("code;name;BIC;A\n0100;A;;\n"), day_of(2026, 11, 21), &list, NULL) ==
         RAVO_OK);
  ravo_bank_list_close(list);
  return list;
}

static ravo_invoice* closed_invoice(void) {
  ravo_invoice* invoice = NULL;
  EXPECT(ravo_invoice_open(SMALL_INVOICE, RAVO_NUL_TERMINATED, &invoice, NULL) == RAVO_OK);
  ravo_invoice_close(invoice);
  return invoice;
}

static ravo_random* closed_random(void) {
  ravo_random* random = NULL;
  EXPECT(ravo_random_open(1, &random, NULL) == RAVO_OK);
  ravo_random_close(random);
  return random;
}

static void closed_lists_are_refused(void) {
  ravo_bank_list* list = closed_list();
  ravo_bank bank = RAVO_BANK_INIT;
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_bank_at(list, 0, &bank, &error) == RAVO_ARGUMENT);
  EXPECT_TEXT(error.message, "the list is closed");
  EXPECT(ravo_bank_find(list, 100, &bank, NULL) == RAVO_ARGUMENT);
  column.layout = RAVO_LAYOUT_FIXED;
  column.width = 4;
  EXPECT(ravo_bank_find_column(NULL, &column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(ravo_bank_find_column(list, &column, 0, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
}

static void count_closed_banks(void) { (void)ravo_bank_count(closed_list()); }
static void count_closed_lines(void) { (void)ravo_invoice_line_count(closed_invoice()); }
static void close_twice(void) { ravo_random_close(closed_random()); }

/* Without a status, the program ends where the fault is. */
static void closed_handles_are_caught(void) {
  closed_lists_are_refused();
  EXPECT(aborts(count_closed_banks) != 0);
  EXPECT(aborts(count_closed_lines) != 0);
  EXPECT(aborts(close_twice) != 0);
}
#else
static void closed_handles_are_caught(void) {}
#endif

void test_handles(void) {
  close_takes_null();
  closed_handles_are_caught();
}

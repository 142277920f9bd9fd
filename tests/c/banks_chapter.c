#include "chapters.h"
#include "expect.h"

static void of_the_built_in_list(void) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_bank bank = RAVO_BANK_INIT;
  size_t index = 0;
  int32_t last = 0;
  EXPECT(ravo_bank_find(NULL, 800, &bank, NULL) == RAVO_OK);
  EXPECT_TEXT(bank.name, "Česká spořitelna, a.s.");
  EXPECT_TEXT(bank.bic, "GIBACZPX");
  EXPECT(bank.clears == 1);
  EXPECT(ravo_bank_find(NULL, 2100, &bank, NULL) == RAVO_OK);
  EXPECT(bank.bic == NULL);
  EXPECT(ravo_bank_find(NULL, 1, &bank, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "bank.unknown");
  EXPECT(ravo_bank_find(NULL, 800 + 65536, &bank, NULL) == RAVO_WRONG);
  /* 13 November 2022. */
  EXPECT(ravo_bank_list_date(NULL) == 2459897);
  for (; index < ravo_bank_count(NULL); ++index) {
    EXPECT(ravo_bank_at(NULL, index, &bank, NULL) == RAVO_OK);
    EXPECT(bank.code > last);
    last = bank.code;
  }
  EXPECT(index > 40);
  EXPECT(ravo_bank_at(NULL, index, &bank, NULL) == RAVO_UNKNOWN);
}

static void of_a_list_that_is_opened(void) {
  static const char csv[] =
      "Kód platebního styku;Poskytovatel;BIC;CERTIS\r\n"
      "0100;Komerční banka, a.s.;KOMBCZPP;A\r\n"
      "\"9999\";\"Banka pokusná\";;";
  ravo_bank bank = RAVO_BANK_INIT;
  ravo_bank_list* list = NULL;
  EXPECT(ravo_bank_list_open(csv, RAVO_NUL_TERMINATED, 2461000, &list, NULL) == RAVO_OK);
  EXPECT(ravo_bank_list_date(list) == 2461000);
  EXPECT(ravo_bank_count(list) == 2);
  EXPECT(ravo_bank_at(list, 1, &bank, NULL) == RAVO_OK);
  EXPECT(bank.code == 9999 && bank.clears == 0 && bank.bic == NULL);
  EXPECT_TEXT(bank.name, "Banka pokusná");
  EXPECT(ravo_bank_find(list, 100, &bank, NULL) == RAVO_OK);
  EXPECT_TEXT(bank.name, "Komerční banka, a.s.");
  EXPECT_TEXT(bank.bic, "KOMBCZPP");
  EXPECT(ravo_bank_find(list, 800, &bank, NULL) == RAVO_WRONG);
  ravo_bank_list_close(list);
  ravo_bank_list_close(NULL);
}

static void of_a_list_with_faults_are_refused(void) {
  static const char csv[] = "code;name;BIC;A\n0100;A;;\n0100;B;;\n";
  ravo_error error = RAVO_ERROR_INIT;
  ravo_bank_list* list = NULL;
  EXPECT(ravo_bank_list_open(csv, RAVO_NUL_TERMINATED, 2461000, &list, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "bank.twice");
  EXPECT(error.position == 30);
  EXPECT(ravo_bank_list_open("", 0, 2461000, &list, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "bank.empty");
  EXPECT(ravo_bank_list_open(csv, RAVO_NUL_TERMINATED, 0, &list, &error) == RAVO_RANGE);
  EXPECT(list == NULL);
}

void test_banks(void) {
  of_the_built_in_list();
  of_a_list_that_is_opened();
  of_a_list_with_faults_are_refused();
}

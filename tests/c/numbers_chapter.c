#include "chapters.h"
#include "expect.h"

static void turns_accounts_into_ibans_and_back(void) {
  char value[RAVO_VALUE_SIZE];
  ravo_account account = RAVO_ACCOUNT_INIT;
  EXPECT(ravo_account_to_iban(TEXT("19-2000145399 / 0800"), value, sizeof value, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(value, "CZ6508000000192000145399");
  EXPECT(ravo_account_of_iban(TEXT("CZ65 0800 0000 1920 0014 5399"), value, sizeof value, NULL, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(value, "19-2000145399/0800");
  EXPECT(ravo_account_of_iban(TEXT("SK3112000000198742637541"), value, sizeof value, NULL, NULL) ==
         RAVO_UNKNOWN);
  EXPECT(ravo_account_read(TEXT("19-2000145399/0800"), &account, NULL) == RAVO_OK);
  EXPECT(account.prefix == 19 && account.number == 2000145399 && account.bank == 800);
  EXPECT(account.size == sizeof account);
}

static void refuses_with_the_reason_and_the_place(void) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_account account = RAVO_ACCOUNT_INIT;
  EXPECT(ravo_account_read(TEXT("19-2000145398/0800"), &account, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "account.checksum");
  EXPECT(account.number == 0);
  EXPECT(ravo_account_to_iban(TEXT("19-20001x"), NULL, 0, NULL, &error) == RAVO_WRONG);
  EXPECT(error.position == 8);
}

static void tells_birth_by_its_number(void) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_birth birth = RAVO_BIRTH_INIT;
  const ravo_day today = 2451545;
  EXPECT(ravo_birth_read(TEXT("880125/1680"), today, &birth, NULL) == RAVO_OK);
  EXPECT(birth.born == 2447186 && birth.sex == RAVO_SEX_MALE);
  EXPECT(ravo_birth_read(TEXT("531322/116"), today, &birth, NULL) == RAVO_WRONG);
  EXPECT(ravo_birth_read(TEXT("535222/116"), today, &birth, NULL) == RAVO_OK);
  EXPECT(birth.sex == RAVO_SEX_FEMALE);
  EXPECT(ravo_birth_read(TEXT("880125/1680"), 2447185, &birth, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "rc.future");
  EXPECT(ravo_birth_read(TEXT("880125/1680"), 2447186, &birth, NULL) == RAVO_OK);
  EXPECT(ravo_birth_read(TEXT("880125/1680"), 0, &birth, NULL) == RAVO_RANGE);
}

static void gives_books_thirteen_digits(void) {
  char value[RAVO_VALUE_SIZE];
  EXPECT(ravo_isbn_to_13(TEXT("0-306-40615-2"), value, sizeof value, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(value, "9780306406157");
}

static void finds_what_is_to_be_paid(void) {
  static const char letter[] = "Prosíme o úhradu: VS 2026 000 579, účet 19-2000145399/0800.";
  ravo_payment payment = RAVO_PAYMENT_INIT;
  EXPECT(ravo_payment_find(TEXT(letter), 0, &payment, NULL) == RAVO_OK);
  EXPECT(payment.kind == RAVO_KIND_VARIABLE_SYMBOL);
  EXPECT_TEXT(payment.canonical, "2026000579");
  EXPECT(memcmp(letter + payment.begin, "2026 000 579", payment.end - payment.begin) == 0);
  EXPECT(ravo_payment_find(TEXT(letter), payment.end, &payment, NULL) == RAVO_OK);
  EXPECT(payment.kind == RAVO_KIND_ACCOUNT);
  EXPECT_TEXT(payment.canonical, "19-2000145399/0800");
  EXPECT(ravo_payment_find(TEXT(letter), payment.end, &payment, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_payment_find(TEXT(letter), sizeof letter, &payment, NULL) == RAVO_RANGE);
}

void test_numbers(void) {
  turns_accounts_into_ibans_and_back();
  refuses_with_the_reason_and_the_place();
  tells_birth_by_its_number();
  gives_books_thirteen_digits();
  finds_what_is_to_be_paid();
}

#include "chapters.h"
#include "expect.h"
#include "marks.h"
#include "memory.h"

#define ACCOUNT "CZ6508000000192000145399"

static void of_payments_are_written(void) {
  ravo_spayd code = RAVO_SPAYD_INIT;
  char text[RAVO_PAYMENT_CODE_SIZE];
  size_t length = 0;
  size_t allocations = allocation_count();
  code.account = ACCOUNT;
  code.amount = "450.00";
  code.currency = "CZK";
  code.variable_symbol = "1234567890";
  code.message = "Platba * za zboží";
  EXPECT(ravo_spayd_write(&code, text, sizeof text, &length, NULL) == RAVO_OK);
  EXPECT_TEXT(text,
              "SPD*1.0*ACC:" ACCOUNT "*AM:450.00*CC:CZK*MSG:Platba %2A za zbo%C5%BE%C3%AD*X-VS:1234567890");
  EXPECT(length == strlen(text));
  EXPECT(allocation_count() == allocations);
  EXPECT(ravo_spayd_write(&code, text, 12, &length, NULL) == RAVO_BUFFER);
  EXPECT_TEXT(text, "SPD*1.0*ACC");
  EXPECT(ravo_spayd_write(&code, NULL, 0, &length, NULL) == RAVO_OK);
}

/* The checksum is the CRC-32 of the header and of the values by their keys. */
static void end_with_a_checksum(void) {
  ravo_spayd code = RAVO_SPAYD_INIT;
  char text[RAVO_PAYMENT_CODE_SIZE];
  char expected[16];
  uint32_t crc = 0;
  code.account = ACCOUNT;
  code.checksum = 1;
  EXPECT(ravo_spayd_write(&code, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT(ravo_crc32(TEXT("SPD*1.0*ACC:" ACCOUNT), &crc, NULL) == RAVO_OK);
  snprintf(expected, sizeof expected, "*CRC32:%08lX", (unsigned long)crc);
  EXPECT_TEXT(text + strlen("SPD*1.0*ACC:" ACCOUNT), expected);
}

static void of_invoices_are_written(void) {
  ravo_sid invoice = RAVO_SID_INIT;
  ravo_spayd payment = RAVO_SPAYD_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  char text[RAVO_PAYMENT_CODE_SIZE];
  char both[RAVO_PAYMENT_CODE_SIZE];
  invoice.number = "2026/1";
  invoice.issued = "20261121";
  invoice.supplier_ico = "04625781";
  EXPECT(ravo_sid_write(&invoice, text, sizeof text, NULL, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "code.missing");
  invoice.inside = 1;
  EXPECT(ravo_sid_write(&invoice, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "SID*1.0*ID:2026/1*DD:20261121*INI:04625781");
  payment.account = ACCOUNT;
  payment.invoice = text;
  EXPECT(ravo_spayd_write(&payment, both, sizeof both, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(both, "SPD*1.0*ACC:" ACCOUNT "*X-INV:SID%2A1.0%2AID:2026/1%2ADD:20261121%2AINI:04625781");
  invoice.inside = 0;
  invoice.amount = "-450.00";
  EXPECT(ravo_sid_write(&invoice, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "SID*1.0*ID:2026/1*DD:20261121*AM:-450.00*INI:04625781");
}

static void tell_which_value_is_wrong(void) {
  ravo_spayd code = RAVO_SPAYD_INIT;
  ravo_sid invoice = RAVO_SID_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  char text[RAVO_PAYMENT_CODE_SIZE];
  size_t length = 7;
  FRESH(text);
  EXPECT(ravo_spayd_write(&code, text, sizeof text, &length, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "code.missing");
  code.account = ACCOUNT;
  code.amount = "450,00";
  EXPECT(ravo_spayd_write(&code, text, sizeof text, &length, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "code.amount");
  EXPECT(error.position == 3);
  EXPECT_TEXT(error.message, "AM: wrong: an amount has digits and at most two decimals after a point");
  code.amount = NULL;
  code.message = "za zbo\xC5";
  EXPECT(ravo_spayd_write(&code, text, sizeof text, &length, &error) == RAVO_UTF8);
  EXPECT(error.position == 6);
  EXPECT_TEXT(error.message, "MSG: the value is not UTF-8");
  invoice.number = "1";
  invoice.issued = "20260230";
  EXPECT(ravo_sid_write(&invoice, text, sizeof text, &length, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "code.date");
  EXPECT((unsigned char)text[0] == MARK && length == 7);
}

static void refuse_what_is_no_code(void) {
  ravo_spayd code = RAVO_SPAYD_INIT;
  ravo_sid invoice = RAVO_SID_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_spayd_write(NULL, NULL, 0, NULL, &error) == RAVO_ARGUMENT);
  EXPECT(ravo_sid_write(NULL, NULL, 0, NULL, &error) == RAVO_ARGUMENT);
  EXPECT(error.message[0] != '\0');
  code.account = ACCOUNT;
  EXPECT(ravo_spayd_write(&code, NULL, 1, NULL, &error) == RAVO_ARGUMENT);
  code.size = 0;
  invoice.size = sizeof invoice - 1;
  EXPECT(ravo_spayd_write(&code, NULL, 0, NULL, &error) == RAVO_ARGUMENT);
  EXPECT(ravo_sid_write(&invoice, NULL, 0, NULL, NULL) == RAVO_ARGUMENT);
}

static void codes_are_read(void) {
  static const char text[] = "SPD*1.0*ACC:" ACCOUNT "*AM:450.00*MSG:zbo%C5%BE%C3%AD*X-OWN:1*";
  ravo_payment_code code = -1;
  ravo_error error = RAVO_ERROR_INIT;
  size_t values = 0;
  char key[8];
  char value[64];
  EXPECT(ravo_payment_code_read(TEXT(text), &code, &values, NULL) == RAVO_OK);
  EXPECT(code == RAVO_PAYMENT_CODE_SPAYD && values == 4);
  EXPECT(ravo_payment_code_at(TEXT(text), 2, key, sizeof key, NULL, value, sizeof value, NULL, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(key, "MSG");
  EXPECT_TEXT(value, "zboží");
  EXPECT(ravo_payment_code_at(TEXT(text), 3, key, sizeof key, NULL, NULL, 0, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(key, "X-OWN");
  EXPECT(ravo_payment_code_at(TEXT(text), 4, key, sizeof key, NULL, NULL, 0, NULL, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_payment_code_read(TEXT("SID*1.0*ID:1*DD:20261121*AM:1"), &code, &values, NULL) == RAVO_OK);
  EXPECT(code == RAVO_PAYMENT_CODE_SID && values == 3);
  EXPECT(ravo_payment_code_read(TEXT("SPD*1.0*ACC:" ACCOUNT "*AM:1*AM:2"), &code, &values, &error) ==
         RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "code.twice");
  EXPECT(error.position == 42);
  EXPECT(ravo_payment_code_at(TEXT("SPD*2.0*"), 0, NULL, 0, NULL, NULL, 0, NULL, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "code.header");
}

void test_payment_codes(void) {
  of_payments_are_written();
  end_with_a_checksum();
  of_invoices_are_written();
  tell_which_value_is_wrong();
  refuse_what_is_no_code();
  codes_are_read();
}

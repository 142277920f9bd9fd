#include "chapters.h"
#include "expect.h"
#include "memory.h"

#include <stdlib.h>

/* A file of samples/isdoc: its text, which the caller frees. */
static char* sample(const char* name) {
  char path[512];
  long size = 0;
  char* text = NULL;
  FILE* file = NULL;
  snprintf(path, sizeof path, "%s%s", RAVO_ISDOC_SAMPLES, name);
  file = fopen(path, "rb");
  EXPECT(file != NULL);
  if (file == NULL) return NULL;
  fseek(file, 0, SEEK_END);
  size = ftell(file);
  fseek(file, 0, SEEK_SET);
  text = (char*)calloc((size_t)size + 1, 1);
  EXPECT(text != NULL && fread(text, 1, (size_t)size, file) == (size_t)size);
  fclose(file);
  return text;
}

static ravo_invoice* opened_sample(const char* name) {
  char* text = sample(name);
  ravo_invoice* invoice = NULL;
  EXPECT(ravo_invoice_open(text, RAVO_NUL_TERMINATED, &invoice, NULL) == RAVO_OK);
  free(text);
  return invoice;
}

static void say_what_they_say_once(const ravo_invoice* invoice) {
  ravo_invoice_head head = RAVO_INVOICE_HEAD_INIT;
  ravo_invoice_party party = RAVO_INVOICE_PARTY_INIT;
  ravo_invoice_totals totals = RAVO_INVOICE_TOTALS_INIT;
  EXPECT(ravo_invoice_head_of(invoice, &head, NULL) == RAVO_OK);
  EXPECT_TEXT(head.number, "20260101");
  EXPECT_TEXT(head.type, "1");
  EXPECT_TEXT(head.uuid, "B3F26974-85BD-526B-B745-9EEDB75B74AA");
  EXPECT_TEXT(head.issued, "2026-11-02");
  EXPECT_TEXT(head.tax_point, "2026-11-02");
  EXPECT_TEXT(head.currency, "CZK");
  EXPECT_TEXT(head.foreign_currency, "");
  EXPECT_TEXT(head.note, "Děkujeme za objednávku.");
  EXPECT(head.version == RAVO_INVOICE_VERSION_KNOWN && head.size == sizeof head);
  EXPECT(ravo_invoice_party_of(invoice, RAVO_INVOICE_ROLE_SUPPLIER, &party, NULL) == RAVO_OK);
  EXPECT_TEXT(party.ico, "09900101");
  EXPECT_TEXT(party.dic, "CZ09900101");
  EXPECT_TEXT(party.name, "Papírna Vzorová s.r.o.");
  EXPECT_TEXT(party.street, "Smyšlená");
  EXPECT_TEXT(party.building, "12/3");
  EXPECT_TEXT(party.post_code, "190 00");
  EXPECT_TEXT(party.city, "Vzorov");
  EXPECT_TEXT(party.country, "CZ");
  EXPECT(ravo_invoice_party_of(invoice, RAVO_INVOICE_ROLE_CUSTOMER, &party, NULL) == RAVO_OK);
  EXPECT_TEXT(party.name, "Příkladné účetnictví a.s.");
  EXPECT(ravo_invoice_totals_of(invoice, &totals, NULL) == RAVO_OK);
  EXPECT_TEXT(totals.base, "2243.00");
  EXPECT_TEXT(totals.tax, "436.47");
  EXPECT_TEXT(totals.total, "2679.47");
  EXPECT_TEXT(totals.claimed_base, "0.00");
  EXPECT_TEXT(totals.difference_total, "2679.47");
  EXPECT_TEXT(totals.rounding, "-0.47");
  EXPECT_TEXT(totals.payable, "2679.00");
}

static void have_rows(const ravo_invoice* invoice) {
  ravo_invoice_line line = RAVO_INVOICE_LINE_INIT;
  ravo_invoice_rate rate = RAVO_INVOICE_RATE_INIT;
  ravo_invoice_payment payment = RAVO_INVOICE_PAYMENT_INIT;
  EXPECT(ravo_invoice_line_count(invoice) == 3);
  EXPECT(ravo_invoice_line_at(invoice, 2, &line, NULL) == RAVO_OK);
  EXPECT_TEXT(line.number, "3");
  EXPECT_TEXT(line.text, "Doprava a vykládka");
  EXPECT_TEXT(line.quantity, "1.5");
  EXPECT_TEXT(line.unit, "hod");
  EXPECT_TEXT(line.unit_price, "640.00");
  EXPECT_TEXT(line.rate, "21");
  EXPECT_TEXT(line.base, "960.00");
  EXPECT_TEXT(line.tax, "201.60");
  EXPECT_TEXT(line.total, "1161.60");
  EXPECT(line.reverse_charge == 0);
  EXPECT(ravo_invoice_line_at(invoice, 3, &line, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_invoice_rate_count(invoice) == 2);
  EXPECT(ravo_invoice_rate_at(invoice, 1, &rate, NULL) == RAVO_OK);
  EXPECT_TEXT(rate.rate, "12");
  EXPECT_TEXT(rate.base, "384.00");
  EXPECT_TEXT(rate.tax, "46.08");
  EXPECT_TEXT(rate.total, "430.08");
  EXPECT_TEXT(rate.claimed_tax, "0.00");
  EXPECT_TEXT(rate.difference_base, "384.00");
  EXPECT(rate.reverse_charge == 0 && rate.way == RAVO_INVOICE_WAY_BASE);
  EXPECT(ravo_invoice_rate_at(invoice, 2, &rate, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_invoice_payment_count(invoice) == 1);
  EXPECT(ravo_invoice_payment_at(invoice, 0, &payment, NULL) == RAVO_OK);
  EXPECT_TEXT(payment.amount, "2679.00");
  EXPECT_TEXT(payment.means, "42");
  EXPECT_TEXT(payment.due, "2026-11-16");
  EXPECT_TEXT(payment.account, "19-1234500002");
  EXPECT_TEXT(payment.bank, "0800");
  EXPECT_TEXT(payment.iban, "CZ5708000000191234500002");
  EXPECT_TEXT(payment.bic, "GIBACZPX");
  EXPECT_TEXT(payment.variable_symbol, "20260101");
  EXPECT_TEXT(payment.constant_symbol, "0308");
  EXPECT_TEXT(payment.specific_symbol, "");
}

static void invoices_are_read(void) {
  ravo_invoice* invoice = opened_sample("domestic.isdoc");
  const size_t allocations = allocation_count();
  say_what_they_say_once(invoice);
  have_rows(invoice);
  EXPECT(ravo_invoice_finding_count(invoice) == 0);
  EXPECT(allocation_count() == allocations);
  ravo_invoice_close(invoice);
  ravo_invoice_close(NULL);
}

/* samples/isdoc/mistakes.isdoc has seven mistakes. */
static void invoices_are_checked(void) {
  ravo_invoice* invoice = opened_sample("mistakes.isdoc");
  ravo_invoice_finding finding = RAVO_INVOICE_FINDING_INIT;
  EXPECT(ravo_invoice_finding_count(invoice) == 7);
  EXPECT(ravo_invoice_finding_at(invoice, 0, &finding, NULL) == RAVO_OK);
  EXPECT_TEXT(finding.name, "id.ico");
  EXPECT_TEXT(finding.element, "ID");
  EXPECT_TEXT(finding.found, "09900290");
  EXPECT_TEXT(finding.expected, "");
  EXPECT(finding.severity == RAVO_INVOICE_SEVERITY_ERROR && finding.line == 50 && finding.column == 9);
  EXPECT_TEXT(ravo_reason_name(finding.reason), "ico.checksum");
  EXPECT_TEXT(ravo_invoice_rule_sentence(finding.rule, RAVO_LANGUAGE_ENGLISH), "the company number is wrong");
  EXPECT(ravo_invoice_finding_at(invoice, 5, &finding, NULL) == RAVO_OK);
  EXPECT_TEXT(finding.name, "date.due");
  EXPECT_TEXT(finding.expected, "2026-11-02");
  EXPECT(finding.severity == RAVO_INVOICE_SEVERITY_NOTE && finding.reason == 0);
  EXPECT(ravo_invoice_finding_at(invoice, 7, &finding, NULL) == RAVO_UNKNOWN);
  ravo_invoice_close(invoice);
}

static void of_other_kinds_are_opened(void) {
  ravo_invoice_head head = RAVO_INVOICE_HEAD_INIT;
  ravo_invoice_finding finding = RAVO_INVOICE_FINDING_INIT;
  ravo_invoice* invoice = NULL;
  EXPECT(ravo_invoice_open(TEXT("<a/>"), &invoice, NULL) == RAVO_OK);
  EXPECT(ravo_invoice_head_of(invoice, &head, NULL) == RAVO_OK);
  EXPECT(head.version == RAVO_INVOICE_VERSION_NONE);
  EXPECT(ravo_invoice_finding_at(invoice, 0, &finding, NULL) == RAVO_OK);
  EXPECT_TEXT(finding.name, "structure.root");
  ravo_invoice_close(invoice);
  EXPECT(ravo_invoice_open(TEXT("<Invoice xmlns=\"http://isdoc.cz/namespace/invoice\"/>"), &invoice, NULL) ==
         RAVO_OK);
  EXPECT(ravo_invoice_head_of(invoice, &head, NULL) == RAVO_OK);
  EXPECT(head.version == RAVO_INVOICE_VERSION_OTHER);
  ravo_invoice_close(invoice);
}

static void that_are_no_xml_are_refused(void) {
  ravo_invoice* invoice = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_invoice_open(TEXT("<Invoice>\n  <ID>č</OD></Invoice>"), &invoice, &error) == RAVO_WRONG);
  EXPECT(error.code == 0 && error.position == 20);
  EXPECT_TEXT(error.message, "line 2, column 10: mismatched tag");
  EXPECT(ravo_invoice_open("", 0, &invoice, &error) == RAVO_WRONG);
  EXPECT(ravo_invoice_open("<a>\xFF</a>", RAVO_NUL_TERMINATED, &invoice, &error) == RAVO_UTF8);
  EXPECT(error.position == 3);
  EXPECT(invoice == NULL);
}

static void invoices_survive_without_memory(void) {
  char* text = sample("mistakes.isdoc");
  size_t allowed = 0;
  ravo_status status = RAVO_MEMORY;
  for (allowed = 0; status == RAVO_MEMORY && allowed < 100000; ++allowed) {
    ravo_invoice* invoice = NULL;
    deny_allocations_after(allowed);
    status = ravo_invoice_open(text, RAVO_NUL_TERMINATED, &invoice, NULL);
    allow_allocations();
    ravo_invoice_close(invoice);
  }
  EXPECT(status == RAVO_OK);
  EXPECT(!allocations_are_counted || allowed > 50);
  free(text);
}

static void of_null_are_empty(void) {
  EXPECT(ravo_invoice_line_count(NULL) == 0 && ravo_invoice_rate_count(NULL) == 0);
  EXPECT(ravo_invoice_payment_count(NULL) == 0 && ravo_invoice_finding_count(NULL) == 0);
  EXPECT(ravo_invoice_rule_sentence(1, RAVO_LANGUAGE_CZECH) == NULL);
  EXPECT(ravo_invoice_rule_sentence(101, 2) == NULL);
}

void test_invoices(void) {
  invoices_are_read();
  invoices_are_checked();
  of_other_kinds_are_opened();
  that_are_no_xml_are_refused();
  invoices_survive_without_memory();
  of_null_are_empty();
}

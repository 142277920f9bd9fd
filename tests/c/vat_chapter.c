#include "chapters.h"
#include "expect.h"

/* 21 November 2026. */
static const ravo_day some_day = 2461366;

static void rates_are_those_of_the_day(void) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_vat_rate rate = RAVO_VAT_RATE_INIT;
  ravo_vat_kind kind = 9;
  int32_t percent = 0;
  size_t index = 0;
  EXPECT(ravo_vat_percent_on(some_day, RAVO_VAT_STANDARD, &percent, NULL) == RAVO_OK && percent == 21);
  EXPECT(ravo_vat_percent_on(some_day, RAVO_VAT_REDUCED, &percent, NULL) == RAVO_OK && percent == 12);
  EXPECT(ravo_vat_percent_on(some_day, RAVO_VAT_SECOND_REDUCED, &percent, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "rate.unknown");
  EXPECT(ravo_vat_kind_on(some_day, 15, &kind, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_vat_kind_on(some_day, 12, &kind, NULL) == RAVO_OK && kind == RAVO_VAT_REDUCED);
  for (; index < ravo_vat_rate_count(); ++index) EXPECT(ravo_vat_rate_at(index, &rate, NULL) == RAVO_OK);
  EXPECT(index == 13);
  /* The last row: 12 % since 1 January 2024. */
  EXPECT(rate.first == 2460311 && rate.last == 5373484 && rate.percent == 12);
  EXPECT_TEXT(rate.law, "349/2023");
  EXPECT(ravo_vat_rate_at(index, &rate, NULL) == RAVO_UNKNOWN);
}

static void ways_are_those_of_the_day(void) {
  ravo_vat_way way = RAVO_VAT_WAY_INIT;
  size_t index = 0;
  EXPECT(ravo_vat_is_lawful(RAVO_VAT_FROM_TOTAL, some_day) == 1);
  EXPECT(ravo_vat_is_lawful(RAVO_VAT_FROM_TOTAL_BY_COEFFICIENT, some_day) == 0);
  EXPECT(ravo_vat_is_lawful(9, some_day) == 0);
  for (; index < ravo_vat_way_count(); ++index) EXPECT(ravo_vat_way_at(index, &way, NULL) == RAVO_OK);
  EXPECT(index == 4);
  EXPECT(way.method == RAVO_VAT_FROM_TOTAL);
  EXPECT_TEXT(way.law, "80/2019");
}

static void comes_from_base_or_total(void) {
  ravo_vat_amounts amounts = RAVO_VAT_AMOUNTS_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_vat_compute(10000000, 21, RAVO_VAT_FROM_BASE, &amounts, NULL) == RAVO_OK);
  EXPECT(amounts.base == 10000000 && amounts.tax == 2100000 && amounts.total == 12100000 &&
         amounts.half == 0);
  /* 12 % in 0.14 are one and a half haléře. */
  EXPECT(ravo_vat_compute(1400, 12, RAVO_VAT_FROM_TOTAL, &amounts, NULL) == RAVO_OK);
  EXPECT(amounts.tax == 200 && amounts.base == 1200 && amounts.total == 1400 && amounts.half == 1);
  EXPECT(ravo_vat_compute(1, 101, RAVO_VAT_FROM_BASE, &amounts, &error) == RAVO_WRONG);
  EXPECT(ravo_vat_compute(INT64_MAX, 21, RAVO_VAT_FROM_BASE, &amounts, &error) == RAVO_RANGE);
}

static void of_a_document_is_summed_by_rates(void) {
  const ravo_vat_line lines[] = {{1000000, RAVO_VAT_STANDARD},
                                 {33300, RAVO_VAT_REDUCED},
                                 {33300, RAVO_VAT_REDUCED},
                                 {33300, RAVO_VAT_REDUCED},
                                 {50000, RAVO_VAT_ZERO}};
  ravo_vat_summary summary = RAVO_VAT_SUMMARY_INIT;
  EXPECT(ravo_vat_recapitulate(lines, 5, RAVO_VAT_FROM_BASE, RAVO_VAT_PER_DOCUMENT, some_day, &summary,
                               NULL) == RAVO_OK);
  EXPECT(summary.rows[RAVO_VAT_REDUCED].percent == 12 && summary.rows[RAVO_VAT_REDUCED].lines == 3);
  EXPECT(summary.rows[RAVO_VAT_REDUCED].tax == 12000);
  EXPECT(summary.rows[RAVO_VAT_ZERO].total == 50000);
  EXPECT(summary.sum.base == 1149900 && summary.sum.tax == 222000 && summary.sum.total == 1371900);
  EXPECT(summary.sum.lines == 5);
}

static void of_a_document_is_refused_with_the_line(void) {
  const ravo_vat_line lines[] = {{10000, RAVO_VAT_STANDARD}, {10000, RAVO_VAT_SECOND_REDUCED}};
  const ravo_vat_line unknown[] = {{10000, RAVO_VAT_STANDARD}, {10000, 4}};
  ravo_vat_summary summary = RAVO_VAT_SUMMARY_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_vat_recapitulate(lines, 2, RAVO_VAT_FROM_BASE, RAVO_VAT_PER_LINE, some_day, &summary, &error) ==
         RAVO_WRONG);
  EXPECT(error.position == 1);
  EXPECT_TEXT(ravo_reason_name(error.code), "rate.unknown");
  EXPECT(ravo_vat_recapitulate(lines, 1, RAVO_VAT_FROM_TOTAL_BY_COEFFICIENT, RAVO_VAT_PER_LINE, some_day,
                               &summary, &error) == RAVO_WRONG);
  EXPECT_TEXT(ravo_reason_name(error.code), "rate.method");
  EXPECT(ravo_vat_recapitulate(unknown, 2, RAVO_VAT_FROM_BASE, RAVO_VAT_PER_LINE, some_day, &summary,
                               &error) == RAVO_ARGUMENT);
  EXPECT(error.position == 1);
  EXPECT(summary.sum.total == 0);
  EXPECT(ravo_vat_recapitulate(NULL, 0, RAVO_VAT_FROM_BASE, RAVO_VAT_PER_LINE, some_day, &summary, NULL) ==
         RAVO_OK);
}

void test_vat(void) {
  rates_are_those_of_the_day();
  ways_are_those_of_the_day();
  comes_from_base_or_total();
  of_a_document_is_summed_by_rates();
  of_a_document_is_refused_with_the_line();
}

#include "chapters.h"
#include "expect.h"

#include <math.h>

typedef ravo_status(RAVO_CALL* check)(const char* text, size_t text_length, int32_t* answer,
                                      ravo_error* error);

/* What a check answers; -1 if it fails. */
static int32_t answer_of(check check_text, const char* text) {
  int32_t answer = -1;
  return check_text(text, RAVO_NUL_TERMINATED, &answer, NULL) == RAVO_OK ? answer : -1;
}

static void checks_are_lenient(void) {
  EXPECT(answer_of(ravo_suite_is_numbers, "0123") == 1 && answer_of(ravo_suite_is_numbers, "") == 0);
  EXPECT(answer_of(ravo_suite_is_numbers, "\xD9\xA1") == 0);
  EXPECT(answer_of(ravo_suite_valid_su, "311") == 1 && answer_of(ravo_suite_valid_su, "31") == 0);
  EXPECT(answer_of(ravo_suite_valid_au, "") == 1 && answer_of(ravo_suite_valid_au, "1000") == 0);
  EXPECT(answer_of(ravo_suite_valid_ucet, "311100") == 1 && answer_of(ravo_suite_valid_ucet, "50") == 0);
  EXPECT(answer_of(ravo_suite_valid_vs, "79927398713") == 1);
  EXPECT(answer_of(ravo_suite_valid_vs, "79927398710") == 0);
  EXPECT(answer_of(ravo_suite_ucet_mod_11, "19-2000145399/0800") == 1);
  EXPECT(answer_of(ravo_suite_ucet_mod_11, "19-2000145398/0800") == 0);
}

static void checks_fail_as_the_suite_does(void) {
  char digits[400];
  ravo_error error = RAVO_ERROR_INIT;
  int32_t answer = 7;
  memset(digits, '0', sizeof digits);
  EXPECT(ravo_suite_ucet_mod_11(digits, 62, &answer, &error) == RAVO_OK && answer == 1);
  answer = 7;
  EXPECT(ravo_suite_ucet_mod_11(digits, 63, &answer, &error) == RAVO_RANGE);
  EXPECT(answer == 7);
  EXPECT(ravo_suite_valid_vs(digits, sizeof digits, &answer, &error) == RAVO_OK && answer == 1);
}

static void splits_accounts(void) {
  char su[8];
  char au[8];
  size_t length = 0;
  EXPECT(ravo_suite_ucet_na_su_au(TEXT("311 1 99"), su, sizeof su, NULL, au, sizeof au, &length, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(su, "311");
  EXPECT_TEXT(au, "1");
  EXPECT(length == 1);
  strcpy(su, "as");
  EXPECT(ravo_suite_ucet_na_su_au(TEXT("311"), su, sizeof su, NULL, NULL, 1, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT_TEXT(su, "as");
}

static void computes_check_digits(void) {
  ravo_suite_ean ean = RAVO_SUITE_EAN_INIT;
  EXPECT(ravo_suite_calculate_ean(TEXT("400638133393"), &ean, NULL) == RAVO_OK);
  EXPECT(ean.valid == 1 && ean.size == sizeof ean);
  EXPECT_TEXT(ean.old_check, " ");
  EXPECT_TEXT(ean.new_check, "1");
  EXPECT_TEXT(ean.full_code, "4006381333931");
  EXPECT(ravo_suite_calculate_ean(TEXT("x"), &ean, NULL) == RAVO_OK);
  EXPECT(ean.valid == 0);
  EXPECT_TEXT(ean.full_code, "");
}

static void rounds_as_stored_documents_are(void) {
  ravo_money result = 7;
  double number = 7;
  EXPECT(ravo_suite_round_value(12340, RAVO_SUITE_ROUND_UP, 2, &result, NULL) == RAVO_OK && result == 12400);
  EXPECT(ravo_suite_round_value(-12390, RAVO_SUITE_ROUND_DOWN, 2, &result, NULL) == RAVO_OK &&
         result == -12300);
  EXPECT(ravo_suite_round_value(10050, RAVO_SUITE_ROUND_MATH, 2, &result, NULL) == RAVO_OK &&
         result == 10100);
  EXPECT(ravo_suite_round_value(12345, 3, 2, &result, NULL) == RAVO_OK && result == 12345);
  EXPECT(ravo_suite_round_value_float(3.0, RAVO_SUITE_ROUND_DOWN, 0, &number, NULL) == RAVO_OK);
  EXPECT(number == 2.0);
  EXPECT(ravo_suite_round_value_float(1.005, RAVO_SUITE_ROUND_MATH, 2, &number, NULL) == RAVO_OK);
  EXPECT(number == 1.0);
  EXPECT(ravo_suite_round_dph(12500, 'P', &result, NULL) == RAVO_OK && result == 15000);
  EXPECT(ravo_suite_round_dph(15000, 'M', &result, NULL) == RAVO_OK && result == 20000);
  EXPECT(ravo_suite_round_dph(10100, 'N', &result, NULL) == RAVO_OK && result == 11000);
  EXPECT(ravo_suite_round_dph(12345, 'm', &result, NULL) == RAVO_OK && result == 12345);
  EXPECT(ravo_suite_round_dph(12345, 'M' + 0x10000, &result, NULL) == RAVO_OK && result == 12345);
}

static void says_which_number_it_cannot_round(void) {
  static const char decimals[] = "the decimals are not -4 to 14";
  static const char amount[] = "the scaled amount or the result does not fit 64 bits";
  ravo_error error = RAVO_ERROR_INIT;
  ravo_money result = 7;
  double number = 7;
  for (int32_t direction = RAVO_SUITE_ROUND_UP; direction <= RAVO_SUITE_ROUND_MATH; ++direction) {
    for (int32_t places = INT8_MIN; places <= INT8_MAX; ++places) {
      const ravo_status expected = places < -4 || places > 14 ? RAVO_RANGE : RAVO_OK;
      EXPECT(ravo_suite_round_value(1, (uint8_t)direction, (int8_t)places, &result, &error) == expected);
      EXPECT(expected == RAVO_OK || strcmp(error.message, decimals) == 0);
    }
    EXPECT_RANGE(ravo_suite_round_value_float(HUGE_VAL, (uint8_t)direction, 2, &number, &error),
                 "the value is not finite");
    EXPECT_RANGE(ravo_suite_round_value_float(NAN, (uint8_t)direction, 2, &number, &error),
                 "the value is not finite");
    EXPECT_RANGE(ravo_suite_round_value_float(1, (uint8_t)direction, 127, &number, &error),
                 "the value with its decimals does not fit 64 bits");
    EXPECT_RANGE(ravo_suite_round_value(INT64_MAX, (uint8_t)direction, 14, &result, &error), amount);
  }
  EXPECT(ravo_suite_round_value(1, 3, 15, &result, &error) == RAVO_OK && result == 1);
  EXPECT(ravo_suite_round_value_float(HUGE_VAL, 3, 127, &number, &error) == RAVO_OK && number == HUGE_VAL);
  EXPECT_RANGE(ravo_suite_round_value(INT64_MAX, RAVO_SUITE_ROUND_MATH, 0, &result, &error), amount);
  EXPECT_RANGE(ravo_suite_round_dph(INT64_MAX, 'M', &result, &error), amount);
  EXPECT(result == 1);
}

static void writes_moments_for_sql(void) {
  static const char no_moment[] = "the moment is not in the years 1 to 9999";
  static const char no_result[] = "the result is not in the years 1 to 9999";
  char text[32];
  ravo_error error = RAVO_ERROR_INIT;
  ravo_suite_moment moment = 0;
  ravo_day day = 0;
  int32_t milliseconds = 0;
  /* 31 December 2010, 13:05:09.007. */
  EXPECT(ravo_suite_moment_of(2455562, 47109007, &moment, NULL) == RAVO_OK);
  EXPECT(ravo_suite_sql_date_time(moment, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "20101231 13:05:09:007");
  EXPECT(ravo_suite_sql_date(moment, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "20101231");
  EXPECT(ravo_suite_sql_time(moment, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "13:05:09:007");
  EXPECT(ravo_suite_moment_parts(moment, &day, &milliseconds, NULL) == RAVO_OK);
  EXPECT(day == 2455562 && milliseconds == 47109007);
  EXPECT_RANGE(ravo_suite_sql_date(1e9, text, sizeof text, NULL, &error), no_moment);
  EXPECT_RANGE(ravo_suite_sql_date_time(-1e9, text, sizeof text, NULL, &error), no_moment);
  EXPECT_RANGE(ravo_suite_sql_time(HUGE_VAL, text, sizeof text, NULL, &error), "the moment is not finite");
  EXPECT_RANGE(ravo_suite_moment_parts(1e9, &day, &milliseconds, &error), no_moment);
  EXPECT_RANGE(ravo_suite_moment_of(2455562, 86400000, &moment, &error),
               "the milliseconds are not 0 to 86399999");
  EXPECT_RANGE(ravo_suite_moment_of(2455562, -1, &moment, &error), "the milliseconds are not 0 to 86399999");
  EXPECT_RANGE(ravo_suite_moment_of(0, 0, &moment, &error), "the day is not in the years 1 to 9999");
  /* 31 January 2011 and one month. */
  EXPECT(ravo_suite_change_month(40574.5, 7, &moment, NULL) == RAVO_OK && moment == 40602.0);
  EXPECT(ravo_suite_change_year(40574.5, -1, &moment, NULL) == RAVO_OK && moment == 40209.0);
  EXPECT_RANGE(ravo_suite_change_year(1e9, -1, &moment, &error), no_moment);
  EXPECT_RANGE(ravo_suite_change_month(NAN, 1, &moment, &error), no_moment);
  /* 31 December 9999, and 1 January of the year 1. */
  EXPECT_RANGE(ravo_suite_change_month(2958465.0, 1, &moment, &error), no_result);
  EXPECT_RANGE(ravo_suite_change_year(2958465.0, 1, &moment, &error), no_result);
  EXPECT_RANGE(ravo_suite_change_month(-693593.0, 0, &moment, &error), no_result);
  EXPECT(moment == 40209.0);
}

static void forms_texts(void) {
  char text[64];
  char number[16];
  EXPECT(ravo_suite_adresa_expand(TEXT("Nádražní 1234/5"), text, sizeof text, NULL, number, sizeof number,
                                  NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "Nádražní");
  EXPECT_TEXT(number, "1234/5");
  EXPECT(ravo_suite_doklad_description(TEXT("FV"), TEXT(" 0012 "), TEXT("2010"), text, sizeof text, NULL,
                                       NULL) == RAVO_OK);
  EXPECT_TEXT(text, "FV0012/2010");
  /* 3 February 2011, 14:05:09. */
  EXPECT(ravo_suite_parse_zaloha_file(TEXT("%FIRMA%_%datum%_%CAS%"), TEXT("A/B: s.r.o."),
                                      40577.0 + 50709.0 / 86400.0, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "AB s.r.o._110203_140509");
  EXPECT(ravo_suite_extract_table_from_property(TEXT("Faktury.Cislo"), text, sizeof text, NULL, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(text, "Faktury");
  EXPECT(ravo_suite_remove_table_from_properties(TEXT("F"), TEXT("F.A;F.B;G.C"), text, sizeof text, NULL,
                                                 NULL) == RAVO_OK);
  EXPECT_TEXT(text, "A;B;G.C");
  EXPECT(ravo_suite_uid_to_string(TEXT("a'b"), text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "'a'b'");
  EXPECT(ravo_suite_uid_to_string(NULL, 0, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "Null");
  EXPECT(ravo_suite_bytes_to_str(1536, 1, ',', "\xC2\xA0", 2, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "1,5 kB (1536 B)");
  EXPECT(ravo_suite_bytes_to_str(1294991360, 0, ',', "\xC2\xA0", 2, text, sizeof text, NULL, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(text,
              "1\xC2\xA0"
              "235,0 MB");
}

static void forms_bytes(void) {
  static const unsigned char version[8] = {0, 0, 0, 0, 0, 0, 7, 0xD1};
  unsigned char bytes[8];
  size_t length = 0;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_suite_timestamp_to_bytes(TEXT("0x00000000000007D1"), bytes, sizeof bytes, &length, NULL) ==
         RAVO_OK);
  EXPECT(length == 8 && memcmp(bytes, version, 8) == 0);
  EXPECT(ravo_suite_timestamp_to_bytes(TEXT("abc"), bytes, sizeof bytes, &length, NULL) == RAVO_OK);
  EXPECT(length == 0);
  EXPECT(ravo_suite_timestamp_to_bytes(TEXT("0x07"), bytes, sizeof bytes, &length, NULL) == RAVO_RANGE);
  EXPECT(ravo_suite_timestamp_to_bytes(TEXT("00000000000007D1"), bytes, 7, &length, &error) == RAVO_BUFFER);
  EXPECT(length == 8);
  /* "Čeněk" in Windows-1250. */
  EXPECT(ravo_suite_remove_diacritics(TEXT("\xC8"
                                           "en\xEC"
                                           "k"),
                                      bytes, sizeof bytes, &length, NULL) == RAVO_OK);
  EXPECT(length == 5 && memcmp(bytes, "Cenek", 5) == 0);
}

void test_suite(void) {
  checks_are_lenient();
  checks_fail_as_the_suite_does();
  splits_accounts();
  computes_check_digits();
  rounds_as_stored_documents_are();
  says_which_number_it_cannot_round();
  writes_moments_for_sql();
  forms_texts();
  forms_bytes();
}

#include "chapters.h"
#include "expect.h"

static void writes_the_canonical_form(void) {
  char value[RAVO_VALUE_SIZE];
  size_t length = 0;
  EXPECT(ravo_check(RAVO_KIND_ICO, "I\xC4\x8C: 046 25 781", RAVO_NUL_TERMINATED, value, sizeof value, &length,
                    NULL) == RAVO_OK);
  EXPECT_TEXT(value, "04625781");
  EXPECT(length == 8);
  EXPECT(ravo_respell(RAVO_KIND_IBAN, "cz6508000000192000145399", 24, value, sizeof value, NULL, NULL) ==
         RAVO_OK);
  EXPECT_TEXT(value, "CZ65 0800 0000 1920 0014 5399");
}

static void tells_why_not_and_where(void) {
  ravo_error error = RAVO_ERROR_INIT;
  char value[RAVO_VALUE_SIZE] = "as it was";
  EXPECT(ravo_check(RAVO_KIND_ICO, "0462x781", 8, value, sizeof value, NULL, &error) == RAVO_WRONG);
  EXPECT(error.status == RAVO_WRONG);
  EXPECT(error.position == 4);
  EXPECT_TEXT(ravo_reason_name(error.code), "ico.character");
  EXPECT_TEXT(error.message, ravo_reason_sentence(error.code, RAVO_LANGUAGE_ENGLISH));
  EXPECT_TEXT(value, "as it was");
}

static void tells_the_length_without_a_buffer(void) {
  size_t length = 0;
  char small[5] = "";
  EXPECT(ravo_check(RAVO_KIND_ICO, "04625781", 8, NULL, 0, &length, NULL) == RAVO_OK);
  EXPECT(length == 8);
  EXPECT(ravo_check(RAVO_KIND_ICO, "04625781", 8, small, sizeof small, &length, NULL) == RAVO_BUFFER);
  EXPECT(length == 8);
  EXPECT_TEXT(small, "0462");
}

static void refuses_what_is_no_text(void) {
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_check(RAVO_KIND_ICO, "0462\xFF", 5, NULL, 0, NULL, &error) == RAVO_UTF8);
  EXPECT(error.position == 4);
  EXPECT(ravo_check(RAVO_KIND_ICO, NULL, 1, NULL, 0, NULL, &error) == RAVO_ARGUMENT);
  EXPECT(ravo_check(RAVO_KIND_ICO, NULL, 0, NULL, 0, NULL, &error) == RAVO_WRONG);
  EXPECT(ravo_check(99, "1", 1, NULL, 0, NULL, &error) == RAVO_ARGUMENT);
  EXPECT(ravo_check(RAVO_KIND_ICO + 256, "1", 1, NULL, 0, NULL, &error) == RAVO_ARGUMENT);
}

static void names_kinds_without_gaps(void) {
  ravo_kind kind = 1;
  ravo_kind found = 0;
  for (; ravo_kind_name(kind) != NULL; ++kind) {
    EXPECT(ravo_kind_of(ravo_kind_name(kind), RAVO_NUL_TERMINATED, &found, NULL) == RAVO_OK);
    EXPECT(found == kind);
    EXPECT(ravo_kind_title(kind, RAVO_LANGUAGE_CZECH) != NULL);
  }
  EXPECT(kind == RAVO_KIND_ISBN + 1);
  EXPECT(ravo_kind_name(0) == NULL);
  EXPECT(ravo_kind_of("nothing", 7, &found, NULL) == RAVO_UNKNOWN);
}

void test_checks(void) {
  writes_the_canonical_form();
  tells_why_not_and_where();
  tells_the_length_without_a_buffer();
  refuses_what_is_no_text();
  names_kinds_without_gaps();
}

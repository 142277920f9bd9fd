#include "chapters.h"
#include "expect.h"

#include <stdlib.h>

static ravo_encoding encoding_of(const char* name) {
  ravo_encoding encoding = -1;
  EXPECT(ravo_encoding_find(name, RAVO_NUL_TERMINATED, &encoding, NULL) == RAVO_OK);
  return encoding;
}

static void have_names(void) {
  ravo_encoding_info info = RAVO_ENCODING_INFO_INIT;
  ravo_encoding found = -1;
  ravo_encoding encoding = 0;
  size_t length = 0;
  EXPECT(ravo_encoding_at(encoding_of("windows-1250"), &info, NULL) == RAVO_OK);
  EXPECT_TEXT(info.name, "Windows_1250");
  EXPECT(info.code_page == 1250 && info.can_read == 1 && info.can_write == 1);
  EXPECT(encoding_of("CP1250") == encoding_of("windows-1250"));
  EXPECT(ravo_encoding_of_code_page(1250, &found, NULL) == RAVO_OK && found == encoding_of("cp1250"));
  EXPECT(ravo_encoding_of_code_page(0, &found, NULL) == RAVO_UNKNOWN);
  EXPECT(ravo_encoding_find(TEXT("klingon"), &found, NULL) == RAVO_UNKNOWN);
  for (encoding = 0; ravo_encoding_at(encoding, &info, NULL) == RAVO_OK; ++encoding)
    EXPECT(encoding_of(info.name) == encoding);
  EXPECT((size_t)encoding == ravo_encoding_count() && encoding > 60);
  EXPECT(ravo_encoding_of_mark(TEXT("\xEF\xBB\xBFx"), &found, &length, NULL) == RAVO_OK);
  EXPECT(found == encoding_of("utf-8") && length == 3);
  EXPECT(ravo_encoding_of_mark(TEXT("abcd"), &found, &length, NULL) == RAVO_UNKNOWN);
}

static void convert_exactly(void) {
  char result[64];
  size_t length = 0;
  const ravo_encoding utf8 = encoding_of("utf-8");
  EXPECT(ravo_convert(encoding_of("windows-1250"),
                      TEXT("\xDA\xE8"
                           "etn\xED"),
                      utf8, RAVO_CONVERT_STRICT, result, sizeof result, &length, NULL, NULL,
                      NULL) == RAVO_OK);
  EXPECT(length == 9 && memcmp(result, "Účetní", 9) == 0);
  EXPECT(ravo_convert(utf8, TEXT("a😀"), encoding_of("utf-16le"), RAVO_CONVERT_STRICT, result, sizeof result,
                      &length, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(length == 6 && memcmp(result, "a\0\x3D\xD8\x00\xDE", 6) == 0);
  EXPECT(ravo_convert(utf8, TEXT("Účetní"), utf8, RAVO_CONVERT_STRICT, result, 8, &length, NULL, NULL,
                      NULL) == RAVO_BUFFER);
  EXPECT(length == 9);
  EXPECT(ravo_convert(utf8, TEXT("Účetní"), utf8, RAVO_CONVERT_STRICT, NULL, 0, &length, NULL, NULL, NULL) ==
         RAVO_OK);
  EXPECT(ravo_convert(utf8, NULL, 0, utf8, RAVO_CONVERT_STRICT, NULL, 0, &length, NULL, NULL, NULL) ==
         RAVO_OK);
  EXPECT(length == 0);
}

static void say_where_they_fail(void) {
  char result[64];
  size_t length = 0;
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_encoding utf8 = encoding_of("utf-8");
  const ravo_encoding czech = encoding_of("windows-1250");
  EXPECT(ravo_convert(utf8, TEXT("ččč\xC4x"), czech, RAVO_CONVERT_STRICT, result, sizeof result, &length,
                      NULL, NULL, &error) == RAVO_MALFORMED);
  EXPECT(error.position == 6);
  EXPECT(ravo_convert(utf8, TEXT("ččč\xC4"), czech, RAVO_CONVERT_STRICT, result, sizeof result, &length, NULL,
                      NULL, &error) == RAVO_MALFORMED);
  EXPECT(error.position == 6);
  EXPECT(ravo_convert(utf8, TEXT("čččя"), czech, RAVO_CONVERT_STRICT, result, sizeof result, &length, NULL,
                      NULL, &error) == RAVO_LACKING);
  EXPECT(error.position == 6);
  EXPECT(ravo_convert(utf8, TEXT("č😀č"), czech, RAVO_CONVERT_STRICT, result, sizeof result, &length, NULL,
                      NULL, &error) == RAVO_LACKING);
  EXPECT(error.position == 2);
  EXPECT(ravo_convert(utf8, TEXT("č😀\xC4я"), czech, RAVO_CONVERT_REPLACE, result, sizeof result, &length,
                      NULL, NULL, &error) == RAVO_OK);
  EXPECT(length == 4 && memcmp(result, "\xE8???", 4) == 0);
}

/* Where a failure is, past a piece of 64 KiB. */
static void say_where_they_fail_in_long_texts(void) {
  enum { SIZE = 200000, AT = 150001 };
  static char text[SIZE];
  ravo_error error = RAVO_ERROR_INIT;
  memset(text, 'a', SIZE);
  text[AT] = '\xFF';
  EXPECT(ravo_convert(encoding_of("utf-8"), text, SIZE, encoding_of("windows-1250"), RAVO_CONVERT_STRICT,
                      NULL, 0, NULL, NULL, NULL, &error) == RAVO_MALFORMED);
  EXPECT(error.position == AT);
  memcpy(text + AT, "я", 2);
  EXPECT(ravo_convert(encoding_of("utf-8"), text, SIZE, encoding_of("windows-1250"), RAVO_CONVERT_STRICT,
                      NULL, 0, NULL, NULL, NULL, &error) == RAVO_LACKING);
  EXPECT(error.position == AT);
}

static void go_in_steps(void) {
  static const char text[] = "Příliš 😀 žluťoučký";
  const size_t size = sizeof text - 1;
  char made[64];
  char again[64];
  char small[3];
  size_t length = 0;
  size_t count = 0;
  size_t i = 0;
  ravo_converter* converter = NULL;
  ravo_error error = RAVO_ERROR_INIT;
  EXPECT(ravo_converter_open(encoding_of("utf-8"), encoding_of("utf-7"), RAVO_CONVERT_STRICT, &converter,
                             NULL) == RAVO_OK);
  for (i = 0; i < size; ++i) {
    EXPECT(ravo_converter_push(converter, text + i, 1, i + 1 == size, NULL) == RAVO_OK);
    while (ravo_converter_pull(converter, small, sizeof small, &length, NULL) == RAVO_OK && length != 0) {
      memcpy(made + count, small, length);
      count += length;
    }
  }
  EXPECT(ravo_converter_push(converter, "a", 1, 0, NULL) == RAVO_ARGUMENT);
  ravo_converter_close(converter);
  EXPECT(ravo_convert(encoding_of("utf-7"), made, count, encoding_of("utf-8"), RAVO_CONVERT_STRICT, again,
                      sizeof again, &length, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(length == size && memcmp(again, text, size) == 0);
  EXPECT(ravo_converter_open(encoding_of("utf-8"), encoding_of("windows-1250"), RAVO_CONVERT_STRICT,
                             &converter, NULL) == RAVO_OK);
  EXPECT(ravo_converter_push(converter, "abc\xC4", 4, 0, NULL) == RAVO_OK);
  EXPECT(ravo_converter_push(converter, "x", 1, 0, &error) == RAVO_MALFORMED);
  EXPECT(error.position == 3);
  EXPECT(ravo_converter_push(converter, "x", 1, 0, NULL) == RAVO_ARGUMENT);
  ravo_converter_close(converter);
  ravo_converter_close(NULL);
}

static int32_t RAVO_CALL stop_past_half(void* context, size_t done, size_t total) {
  ++*(int*)context;
  return done * 2 > total ? -77 : 0;
}

static void can_be_stopped(void) {
  enum { SIZE = 400000 };
  char* text = (char*)calloc(SIZE, 1);
  int calls = 0;
  ravo_error error = RAVO_ERROR_INIT;
  if (text == NULL) return;
  EXPECT(ravo_convert(encoding_of("utf-8"), text, SIZE, encoding_of("utf-8"), RAVO_CONVERT_STRICT, NULL, 0,
                      NULL, stop_past_half, &calls, &error) == RAVO_STOPPED);
  EXPECT(error.code == -77);
  EXPECT(calls > 1 && error.position * 2 > SIZE && error.position < SIZE);
  free(text);
}

void test_encodings(void) {
  have_names();
  convert_exactly();
  say_where_they_fail();
  say_where_they_fail_in_long_texts();
  go_in_steps();
  can_be_stopped();
}

#include "chapters.h"
#include "expect.h"

static unsigned char form_bytes[64];
static size_t written_length = 0;

static int wrote(const char* expected, size_t expected_length) {
  return written_length == expected_length && memcmp(form_bytes, expected, expected_length) == 0;
}

static int text_string(const char* text, const char* expected, size_t expected_length) {
  return ravo_suite_win_1250_to_pdf_doc_encoding(text, RAVO_NUL_TERMINATED, form_bytes, sizeof form_bytes,
                                                 &written_length, NULL) == RAVO_OK &&
         wrote(expected, expected_length);
}

static int field(const char* name, const char* value, int32_t as_unicode, const char* expected,
                 size_t expected_length) {
  return ravo_suite_fill_pdf_field(name, RAVO_NUL_TERMINATED, value, RAVO_NUL_TERMINATED, as_unicode,
                                   form_bytes, sizeof form_bytes, &written_length, NULL) == RAVO_OK &&
         wrote(expected, expected_length);
}

static int number_field(const char* name, int32_t value, const char* expected, size_t expected_length) {
  return ravo_suite_fill_pdf_field_as_integer(name, RAVO_NUL_TERMINATED, value, form_bytes, sizeof form_bytes,
                                              &written_length, NULL) == RAVO_OK &&
         wrote(expected, expected_length);
}

static void writes_text_strings(void) {
  EXPECT(text_string("", TEXT("\xFE\xFF")));
  EXPECT(text_string("Novák", TEXT("\xFE\xFF\0N\0o\0v\0\xE1\0k")));
  EXPECT(text_string("řďž€", TEXT("\xFE\xFF\x01\x59\x01\x0F\x01\x7E\x20\xAC")));
  EXPECT(text_string("č", TEXT("\xFE\xFF\x01\\r")));
  EXPECT(text_string("Č", TEXT("\xFE\xFF\x01\x0C")));
  EXPECT(text_string("(\\)\r", TEXT("\xFE\xFF\0(\0\\\0)\0\r")));
  EXPECT(text_string("語", TEXT("\xFE\xFF\0?")));
}

static void writes_fields(void) {
  EXPECT(field("Jmeno", "Novák", 0, TEXT("<</T(Jmeno)/V(Nov\xE1k)>>")));
  EXPECT(field("Jmeno", "Novák", 1, TEXT("<</T(Jmeno)/V(\xFE\xFF\0N\0o\0v\0\xE1\0k)>>")));
  EXPECT(field("", "", 0, TEXT("<</T()/V()>>")));
  EXPECT(field("a(b", "c)\\", 0, TEXT("<</T(a(b)/V(c)\\)>>")));
  EXPECT(field("語", "語", 0, TEXT("<</T(?)/V(?)>>")));
  EXPECT(number_field("name", -1, TEXT("<</T(name)/V/-1>>")));
  EXPECT(number_field("č", INT32_MIN, TEXT("<</T(\xE8)/V/-2147483648>>")));
}

static void writes_fields_whole_or_not(void) {
  EXPECT(ravo_suite_fill_pdf_field(TEXT("a"), TEXT("b"), 0, NULL, 0, &written_length, NULL) == RAVO_OK);
  EXPECT(written_length == 14);
  memset(form_bytes, 7, sizeof form_bytes);
  EXPECT(ravo_suite_fill_pdf_field(TEXT("a"), TEXT("b"), 0, form_bytes, 13, &written_length, NULL) ==
         RAVO_BUFFER);
  EXPECT(written_length == 14 && form_bytes[0] == 7);
  EXPECT(ravo_suite_fill_pdf_field(TEXT("a"), TEXT("b"), 0, form_bytes, 14, &written_length, NULL) ==
         RAVO_OK);
  EXPECT(form_bytes[14] == 7);
}

static const char* pdf_date(ravo_suite_moment moment, int32_t without_year, int32_t leading_zeros) {
  static char text[16];
  EXPECT(ravo_suite_date_2_pdf(moment, without_year, leading_zeros, text, sizeof text, NULL, NULL) ==
         RAVO_OK);
  return text;
}

static void writes_dates_and_flags(void) {
  static const char no_moment[] = "the moment is not in the years 1 to 9999";
  ravo_error error = RAVO_ERROR_INIT;
  char text[16] = "as";
  /* 45356 is 5 March 2024, 45657 is 31 December 2024. */
  EXPECT_TEXT(pdf_date(45356.75, 0, 0), "5.3.2024");
  EXPECT_TEXT(pdf_date(45356.75, 0, 1), "05.03.2024");
  EXPECT_TEXT(pdf_date(45356.75, 1, 0), "5.3.");
  EXPECT_TEXT(pdf_date(45356.75, 1, 1), "05.03.");
  EXPECT_TEXT(pdf_date(0, 0, 0), "");
  EXPECT_RANGE(ravo_suite_date_2_xml(1e9, text, sizeof text, NULL, &error), no_moment);
  EXPECT_RANGE(ravo_suite_date_2_pdf(1e9, 0, 0, text, sizeof text, NULL, &error), no_moment);
  EXPECT_TEXT(text, "as");
  EXPECT(ravo_suite_date_2_xml(45657.75, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "2024-12-31");
  EXPECT(ravo_suite_date_2_xml(0, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "");
  EXPECT(ravo_suite_bool_2_xml(1, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "X");
  EXPECT(ravo_suite_bool_2_xml(0, text, sizeof text, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(text, "");
}

static void writes_records(void) {
  EXPECT(ravo_suite_string_to_stream("\xC8"
                                     "ech",
                                     4, form_bytes, sizeof form_bytes, &written_length, NULL) == RAVO_OK);
  EXPECT(
      wrote(TEXT("\4\0\0\0\xC8"
                 "ech\0")));
  EXPECT(ravo_suite_string_to_stream(NULL, 0, form_bytes, sizeof form_bytes, &written_length, NULL) ==
         RAVO_OK);
  EXPECT(wrote(TEXT("\0\0\0\0\0")));
}

/* Reads the record at `from` of some bytes; where the next one begins, or the status below 0. */
static int read_record(const char* bytes, size_t bytes_length, size_t from) {
  size_t end = 0;
  const ravo_status status = ravo_suite_string_from_stream(bytes, bytes_length, from, form_bytes,
                                                           sizeof form_bytes, &written_length, &end, NULL);
  return status == RAVO_OK ? (int)end : -(int)status;
}

static void reads_records(void) {
  static const char two[] = "\5\0\0\0first\0\3\0\0\0a\0b";
  EXPECT(read_record(two, sizeof two, 0) == 10 && wrote(TEXT("first")));
  EXPECT(read_record(two, sizeof two, 10) == 18 && wrote(TEXT("a\0b")));
  EXPECT(sizeof two == 18);
  EXPECT(read_record(two, sizeof two, 18) == -RAVO_RANGE && read_record(two, sizeof two, 15) == -RAVO_RANGE);
  EXPECT(read_record(two, sizeof two, 19) == -RAVO_RANGE &&
         read_record(two, sizeof two, (size_t)-1) == -RAVO_RANGE);
  EXPECT(read_record(NULL, 0, 0) == -RAVO_RANGE);
}

static void reads_broken_records(void) {
  size_t end = 0;
  EXPECT(read_record(TEXT("\6\0\0\0ab"), 0) == 7 && wrote(TEXT("ab\0\0\0\0")));
  EXPECT(read_record(TEXT("\1\0\0"), 0) == -RAVO_RANGE);
  EXPECT(read_record(TEXT("\xFF\xFF\xFF\xFF"
                          "a"),
                     0) == -RAVO_RANGE);
  EXPECT(read_record(TEXT("\0\0\0\x80"), 0) == -RAVO_RANGE);
  /* What a record promises is not allocated. */
  EXPECT(ravo_suite_string_from_stream("\xFF\xFF\xFF\x7Fxy", 6, 0, NULL, 0, &written_length, &end, NULL) ==
         RAVO_OK);
  EXPECT(written_length == 2147483647u && end == 7);
  memset(form_bytes, 7, sizeof form_bytes);
  EXPECT(ravo_suite_string_from_stream("\xFF\xFF\xFF\x7Fxy", 6, 0, form_bytes, sizeof form_bytes,
                                       &written_length, &end, NULL) == RAVO_BUFFER);
  EXPECT(form_bytes[0] == 7);
}

void test_forms(void) {
  writes_text_strings();
  writes_fields();
  writes_fields_whole_or_not();
  writes_dates_and_flags();
  writes_records();
  reads_records();
  reads_broken_records();
}

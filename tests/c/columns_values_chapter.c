#include "chapters.h"
#include "column_layouts.h"
#include "expect.h"
#include "memory.h"

enum { BANK_CODE = 1404, BANK_UNKNOWN = 1402, DAY_RANGE = 1501, MONEY_RANGE = 1601 };

/* Room for answers with texts, as a caller has it. */
typedef struct room {
  ravo_answers answers;
  ravo_texts texts;
  uint16_t codes[MOST_ROWS];
  int32_t offsets[MOST_ROWS + 1];
  char data[1024];
} room;

static ravo_answers* fresh_codes(room* given) {
  const ravo_answers answers = RAVO_ANSWERS_INIT;
  memset(given, 0x55, sizeof *given);
  given->answers = answers;
  given->answers.codes = given->codes;
  return &given->answers;
}

static ravo_answers* fresh_texts(room* given) {
  const ravo_texts texts = RAVO_TEXTS_INIT;
  fresh_codes(given);
  given->texts = texts;
  given->texts.layout = RAVO_LAYOUT_OFFSETS_32;
  given->texts.offsets = given->offsets;
  given->texts.data = given->data;
  given->texts.data_size = sizeof given->data;
  given->answers.texts = &given->texts;
  return &given->answers;
}

static void expect_row_codes(const room* found, const uint16_t* codes, size_t count, size_t wrong, int line) {
  size_t row;
  size_t nulls = 0;
  for (row = 0; row < count; ++row) {
    nulls += codes[row] == RAVO_CODE_NULL ? 1u : 0u;
    if (found->codes[row] == codes[row]) continue;
    printf("line %d, row %u: code %u\n", line, (unsigned)row, (unsigned)found->codes[row]);
    ++failures;
  }
  EXPECT(found->answers.wrong == wrong && found->answers.nulls == nulls);
}

/* Expects codes, and the texts of the rows one after the other. */
static void expect_texts(const room* found, const uint16_t* codes, size_t count, size_t wrong,
                         const char* const* texts, int line) {
  size_t row;
  expect_row_codes(found, codes, count, wrong, line);
  for (row = 0; row < count; ++row) {
    const size_t length = (size_t)(found->offsets[row + 1] - found->offsets[row]);
    if (length == strlen(texts[row]) && memcmp(found->data + found->offsets[row], texts[row], length) == 0)
      continue;
    printf("line %d, row %u: \"%.*s\"\n", line, (unsigned)row, (int)length,
           found->data + found->offsets[row]);
    ++failures;
  }
}

static void columns_have_banks(void) {
  static const char* const texts[] = {"0800",    NULL,     "19-2000145399/0100", "9999", "800", "", "0100 ",
                                      "080\xFF", "2010/x/"};
  static const uint16_t codes[] = {
      0, RAVO_CODE_NULL, 0, BANK_UNKNOWN, BANK_CODE, BANK_CODE, BANK_CODE, RAVO_CODE_NOT_UTF8, BANK_CODE};
  ravo_bank first = RAVO_BANK_INIT;
  ravo_bank third = RAVO_BANK_INIT;
  const char* names[9] = {"", "", "", "", "", "", "", "", ""};
  int layout;
  EXPECT(ravo_bank_find(NULL, 800, &first, NULL) == RAVO_OK &&
         ravo_bank_find(NULL, 100, &third, NULL) == RAVO_OK);
  names[0] = first.name;
  names[2] = third.name;
  for (layout = 0; layout < LAYOUTS_OF_TEXTS; ++layout) {
    laid_out column;
    room found;
    lay_out_texts(&column, layout, texts, 9);
    EXPECT(ravo_bank_find_column(NULL, &column.column, layout % 2 ? RAVO_TRUSTED : 0, fresh_texts(&found),
                                 NULL, NULL, NULL) == RAVO_OK);
    expect_texts(&found, codes, 9, 6, names, __LINE__);
    EXPECT(ravo_bank_find_column(NULL, &column.column, 0, fresh_codes(&found), NULL, NULL, NULL) == RAVO_OK);
    expect_row_codes(&found, codes, 9, 6, __LINE__);
  }
}

static void columns_have_banks_of_a_list(void) {
  static const char* const texts[] = {"0800", "0100"};
  static const uint16_t codes[] = {BANK_UNKNOWN, 0};
  static const char* const names[] = {"", "moje"};
  ravo_bank_list* list = NULL;
  laid_out column;
  room found;
  EXPECT(ravo_bank_list_open("code;name;BIC;A\n0100;moje;;\n", RAVO_NUL_TERMINATED, 2461366, &list, NULL) ==
         RAVO_OK);
  lay_out_texts(&column, 0, texts, 2);
  EXPECT(ravo_bank_find_column(list, &column.column, 0, fresh_texts(&found), NULL, NULL, NULL) == RAVO_OK);
  expect_texts(&found, codes, 2, 1, names, __LINE__);
  ravo_bank_list_close(list);
}

static void columns_have_numbers_of_tables(void) {
  static const char* const texts[] = {"Profil", "\xC4\x8C\xC3\xADseln\xC3\xADk bank", NULL, "profil", "",
                                      "\xFF"};
  static const uint16_t codes[] = {
      0, 0, RAVO_CODE_NULL, RAVO_CODE_UNKNOWN, RAVO_CODE_UNKNOWN, RAVO_CODE_NOT_UTF8};
  static const int32_t expected[] = {10110, 10310, 0, 0, 0, 0};
  int layout;
  for (layout = 0; layout < LAYOUTS_OF_TEXTS; ++layout) {
    laid_out column;
    room found;
    int32_t ids[6] = {7, 7, 7, 7, 7, 7};
    lay_out_texts(&column, layout, texts, 6);
    EXPECT(ravo_suite_table_find_column(&column.column, 0, ids, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_OK);
    expect_row_codes(&found, codes, 6, 3, __LINE__);
    EXPECT(memcmp(ids, expected, sizeof ids) == 0);
  }
}

/* Every name of the catalogue gives its own number. */
static void every_table_has_its_number(void) {
  ravo_suite_table table = RAVO_SUITE_TABLE_INIT;
  size_t index;
  for (index = 0; ravo_suite_table_at(index, &table, NULL) == RAVO_OK; ++index) {
    laid_out column;
    room found;
    int32_t id = 0;
    lay_out_texts(&column, 0, &table.name, 1);
    EXPECT(ravo_suite_table_find_column(&column.column, 0, &id, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_OK);
    EXPECT(id == table.first && found.codes[0] == 0);
  }
}

static void columns_have_rounded_amounts(void) {
  static const int64_t amounts[] = {125049, 125050, -125050, 0, INT64_MAX, INT64_MIN, 99};
  static const int64_t halves_away[] = {125000, 125100, -125100, 0, 0, 0, 100};
  static const int64_t toward[] = {125000, 125000, -125000, 0, INT64_MAX - 7, INT64_MIN + 8, 0};
  static const uint16_t codes[] = {0, 0, 0, RAVO_CODE_NULL, MONEY_RANGE, MONEY_RANGE, 0};
  static const uint16_t codes_toward[] = {0, 0, 0, RAVO_CODE_NULL, 0, 0, 0};
  int layout;
  for (layout = 0; layout < LAYOUTS_OF_NUMBERS; ++layout) {
    laid_out column;
    room found;
    int64_t results[7];
    lay_out_numbers(&column, layout, 8, amounts, 7, 3);
    EXPECT(ravo_money_round_column(&column.column, 0, 100, RAVO_ROUND_TOWARD, results, fresh_codes(&found),
                                   NULL, NULL, NULL) == RAVO_OK);
    expect_row_codes(&found, codes_toward, 7, 0, __LINE__);
    EXPECT(memcmp(results, toward, sizeof results) == 0);
    EXPECT(ravo_money_round_column(&column.column, RAVO_TRUSTED, 100, RAVO_ROUND_HALF_AWAY, results,
                                   fresh_codes(&found), NULL, NULL, NULL) == RAVO_OK);
    EXPECT(memcmp(results, halves_away, 3 * sizeof *results) == 0 && results[6] == 100);
    /* 9223372036854775807 is 7 above a multiple of 100. */
    EXPECT(results[4] == INT64_MAX - 7 && results[5] == INT64_MIN + 8);
    EXPECT(ravo_money_round_column(&column.column, 0, 100, RAVO_ROUND_AWAY, results, fresh_codes(&found),
                                   NULL, NULL, NULL) == RAVO_OK);
    EXPECT(results[0] == 125100 && results[4] == 0 && results[5] == 0);
    expect_row_codes(&found, codes, 7, 2, __LINE__);
  }
}

static void amounts_can_be_rounded_in_place(void) {
  int64_t amounts[] = {125049, 125050, -1};
  ravo_column column = RAVO_COLUMN_INIT;
  room found;
  column.layout = RAVO_LAYOUT_NUMBERS;
  column.width = 8;
  column.length = 3;
  column.values = amounts;
  EXPECT(ravo_money_round_column(&column, 0, 10000, RAVO_ROUND_AWAY, amounts, fresh_codes(&found), NULL, NULL,
                                 NULL) == RAVO_OK);
  EXPECT(amounts[0] == 130000 && amounts[1] == 130000 && amounts[2] == -10000);
}

static void columns_have_days(void) {
  static const char* const texts[] = {"2026-11-21", " 21. 11. 2026 ", NULL,         "20261121",
                                      "2026-02-29", "dnes",           "2026-11-2x", "2026-11-21\xFF"};
  static const uint16_t codes[] = {
      0, 0, RAVO_CODE_NULL, 0, DAY_RANGE, RAVO_CODE_NO_DATE, RAVO_CODE_NO_DATE, RAVO_CODE_NOT_UTF8};
  /* 21 November 2026 is the day 20778 after 1 January 1970: date -ud 2026-11-21 +%s, by 86400. */
  static const int32_t expected[] = {20778, 20778, 0, 20778, 0, 0, 0, 0};
  int layout;
  for (layout = 0; layout < LAYOUTS_OF_TEXTS; ++layout) {
    laid_out column;
    room found;
    int32_t days[8];
    lay_out_texts(&column, layout, texts, 8);
    EXPECT(ravo_day_read_column(&column.column, 0, RAVO_DAY_1970, days, fresh_codes(&found), NULL, NULL,
                                NULL) == RAVO_OK);
    expect_row_codes(&found, codes, 8, 4, __LINE__);
    EXPECT(memcmp(days, expected, sizeof days) == 0);
    EXPECT(ravo_day_read_column(&column.column, 0, 0, days, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_OK);
    EXPECT(days[0] == day_of(2026, 11, 21) && days[4] == 0);
    EXPECT(ravo_day_read_column(&column.column, 0, INT32_MIN, days, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_OK);
    EXPECT(days[0] == 0 && found.codes[0] == DAY_RANGE);
  }
}

static void columns_of_days_have_texts(void) {
  static const int64_t days[] = {20778, 0, 0, -719162, -719163, 2932896, 2932897, INT32_MAX, INT32_MIN};
  static const uint16_t codes[] = {0, 0, RAVO_CODE_NULL, 0, DAY_RANGE, 0, DAY_RANGE, DAY_RANGE, DAY_RANGE};
  static const char* const iso[] = {"2026-11-21", "1970-01-01", "", "0001-01-01", "", "9999-12-31",
                                    "",           "",           ""};
  static const char* const czech[] = {
      "21. 11. 2026", "1. 1. 1970", "", "1. 1. 0001", "", "31. 12. 9999", "", "", ""};
  int layout;
  for (layout = 0; layout < LAYOUTS_OF_NUMBERS; ++layout) {
    laid_out column;
    room found;
    lay_out_numbers(&column, layout, 4, days, 9, 2);
    EXPECT(ravo_day_format_column(&column.column, 0, RAVO_DAY_1970, RAVO_DATE_ISO, fresh_texts(&found), NULL,
                                  NULL, NULL) == RAVO_OK);
    expect_texts(&found, codes, 9, 4, iso, __LINE__);
    EXPECT(ravo_day_format_column(&column.column, RAVO_TRUSTED, RAVO_DAY_1970, RAVO_DATE_CZECH,
                                  fresh_texts(&found), NULL, NULL, NULL) == RAVO_OK);
    expect_texts(&found, codes, 9, 4, czech, __LINE__);
  }
}

static ravo_encoding encoding_named(const char* name) {
  ravo_encoding encoding = -1;
  EXPECT(ravo_encoding_find(name, RAVO_NUL_TERMINATED, &encoding, NULL) == RAVO_OK);
  return encoding;
}

static void columns_are_converted(void) {
  static const char* const texts[] = {"abc", "\332\350etn\355 den\355k", NULL, "", "x\x81", "\x8A"};
  static const char* const utf8[] = {"abc", "Účetní deník", "", "", "", "Š"};
  static const uint16_t codes[] = {0, 0, RAVO_CODE_NULL, 0, RAVO_CODE_MALFORMED, 0};
  static const char* const replaced[] = {"abc", "Účetní deník", "", "", "x\xEF\xBF\xBD", "Š"};
  static const uint16_t all_right[] = {0, 0, RAVO_CODE_NULL, 0, 0, 0};
  const ravo_encoding from = encoding_named("windows-1250");
  const ravo_encoding to = encoding_named("utf-8");
  int layout;
  for (layout = 0; layout < LAYOUTS_OF_TEXTS; ++layout) {
    laid_out column;
    room found;
    lay_out_texts(&column, layout, texts, 6);
    EXPECT(ravo_convert_column(from, &column.column, 0, to, RAVO_CONVERT_STRICT, fresh_texts(&found), NULL,
                               NULL, NULL) == RAVO_OK);
    expect_texts(&found, codes, 6, 1, utf8, __LINE__);
    EXPECT(ravo_convert_column(from, &column.column, RAVO_TRUSTED, to, RAVO_CONVERT_REPLACE,
                               fresh_texts(&found), NULL, NULL, NULL) == RAVO_OK);
    expect_texts(&found, all_right, 6, 0, replaced, __LINE__);
  }
}

static void columns_are_converted_back(void) {
  static const char* const texts[] = {"Účetní deník", "a😀", NULL, "a\xFFz", "Šx", "12345678901234567890č"};
  static const char* const czech[] = {"\332\350etn\355 den\355k", "", "", "", "\x8Ax",
                                      "12345678901234567890\xE8"};
  static const uint16_t codes[] = {0, RAVO_CODE_LACKING, RAVO_CODE_NULL, RAVO_CODE_MALFORMED, 0, 0};
  const ravo_encoding utf8 = encoding_named("utf-8");
  const ravo_encoding to = encoding_named("windows-1250");
  int layout;
  for (layout = 0; layout < LAYOUTS_OF_TEXTS; ++layout) {
    laid_out column;
    room found;
    lay_out_texts(&column, layout, texts, 6);
    EXPECT(ravo_convert_column(utf8, &column.column, 0, to, RAVO_CONVERT_STRICT, fresh_texts(&found), NULL,
                               NULL, NULL) == RAVO_OK);
    expect_texts(&found, codes, 6, 2, czech, __LINE__);
  }
}

/* An encoding with a state begins each row anew, after a fault too. */
static void rows_are_texts_of_their_own(void) {
  static const char* const texts[] = {"č", "čé\xFF", "č"};
  static const char* const expected[] = {"+AQ0-", "", "+AQ0-"};
  static const uint16_t codes[] = {0, RAVO_CODE_MALFORMED, 0};
  laid_out column;
  room found;
  lay_out_texts(&column, 0, texts, 3);
  EXPECT(ravo_convert_column(encoding_named("utf-8"), &column.column, 0, encoding_named("utf-7"),
                             RAVO_CONVERT_STRICT, fresh_texts(&found), NULL, NULL, NULL) == RAVO_OK);
  expect_texts(&found, codes, 3, 1, expected, __LINE__);
}

static void texts_that_fit_no_width_end_the_call(void) {
  static const char* const texts[] = {"\xE8", "\xE8\xE8"};
  laid_out column;
  room found;
  ravo_error error = RAVO_ERROR_INIT;
  const ravo_encoding from = encoding_named("windows-1250");
  lay_out_texts(&column, 0, texts, 2);
  fresh_texts(&found);
  found.texts.layout = RAVO_LAYOUT_FIXED;
  found.texts.width = 3;
  EXPECT(ravo_convert_column(from, &column.column, 0, encoding_named("utf-8"), 0, &found.answers, NULL, NULL,
                             &error) == RAVO_RANGE);
  EXPECT(error.position == 1);
  found.texts.width = 4;
  EXPECT(ravo_convert_column(from, &column.column, 0, encoding_named("utf-8"), 0, &found.answers, NULL, NULL,
                             &error) == RAVO_OK);
  EXPECT(memcmp(found.data, "č\0\0čč", 8) == 0 && found.texts.data_length == 8);
  fresh_texts(&found);
  found.texts.data_size = 5;
  EXPECT(ravo_convert_column(from, &column.column, 0, encoding_named("utf-8"), 0, &found.answers, NULL, NULL,
                             &error) == RAVO_BUFFER);
  EXPECT(found.texts.data_length == 6);
}

/* Enough rows that short ones are converted by a table; one is too long for it, and one is malformed. */
enum { MANY_ROWS = 1500, KINDS_OF_ROWS = 6 };

static const char* const many_texts[KINDS_OF_ROWS] = {
    "\332\350et", "plain",    "", "\350tvrt\375 \370\341dek, del\232\355 ne\236 t\370icet dva byty",
    "x\201",      "slu\236by"};
static const char* const many_utf8[KINDS_OF_ROWS] = {
    "Účet", "plain", "", "čtvrtý řádek, delší než třicet dva byty", "", "služby"};

typedef struct many_rows {
  ravo_column column;
  ravo_answers answers;
  ravo_texts texts;
  int32_t from[MANY_ROWS + 1];
  int32_t to[MANY_ROWS + 1];
  uint16_t codes[MANY_ROWS];
  char data[MANY_ROWS * 16];
  char made[MANY_ROWS * 16];
} many_rows;

static void lay_out_many(many_rows* rows) {
  const ravo_column column = RAVO_COLUMN_INIT;
  size_t row;
  rows->column = column;
  rows->column.layout = RAVO_LAYOUT_OFFSETS_32;
  rows->column.length = MANY_ROWS;
  rows->column.values = rows->from;
  rows->column.data = rows->data;
  rows->from[0] = 0;
  for (row = 0; row < MANY_ROWS; ++row) {
    const char* const text = many_texts[row % KINDS_OF_ROWS];
    memcpy(rows->data + rows->from[row], text, strlen(text));
    rows->from[row + 1] = rows->from[row] + (int32_t)strlen(text);
  }
  rows->column.data_size = (size_t)rows->from[MANY_ROWS];
}

static ravo_status convert_many(many_rows* rows, size_t data_size) {
  const ravo_answers answers = RAVO_ANSWERS_INIT;
  const ravo_texts texts = RAVO_TEXTS_INIT;
  memset(rows->made, 0x55, sizeof rows->made);
  rows->answers = answers;
  rows->answers.codes = rows->codes;
  rows->answers.texts = &rows->texts;
  rows->texts = texts;
  rows->texts.layout = RAVO_LAYOUT_OFFSETS_32;
  rows->texts.offsets = rows->to;
  rows->texts.data = rows->made;
  rows->texts.data_size = data_size;
  return ravo_convert_column(encoding_named("windows-1250"), &rows->column, 0, encoding_named("utf-8"),
                             RAVO_CONVERT_STRICT, &rows->answers, NULL, NULL, NULL);
}

/* The memory of the results ends at any place. */
static void many_rows_are_converted(void) {
  static many_rows rows;
  size_t total, size;
  lay_out_many(&rows);
  EXPECT(convert_many(&rows, sizeof rows.made) == RAVO_OK);
  EXPECT(rows.answers.wrong == MANY_ROWS / KINDS_OF_ROWS);
  total = rows.texts.data_length;
  for (size = total - 150; size <= total; ++size) {
    size_t row, wrong = 0;
    EXPECT(convert_many(&rows, size) == (size == total ? RAVO_OK : RAVO_BUFFER));
    EXPECT(rows.texts.data_length == total && rows.made[size] == 0x55);
    for (row = 0; row < MANY_ROWS; ++row) {
      const char* const text = many_utf8[row % KINDS_OF_ROWS];
      const size_t end = (size_t)rows.to[row + 1];
      const int is_there = end > size || memcmp(rows.made + rows.to[row], text, strlen(text)) == 0;
      wrong += end - (size_t)rows.to[row] != strlen(text) || !is_there ? 1u : 0u;
      wrong += rows.codes[row] != (row % KINDS_OF_ROWS == 4 ? RAVO_CODE_MALFORMED : 0) ? 1u : 0u;
    }
    EXPECT(wrong == 0);
  }
}

static void broken_rows_end_every_call(void) {
  static const char* const texts[] = {"0800", "Profil", "2026-11-21"};
  static const int64_t numbers[] = {1, 2, 3};
  laid_out column;
  room found;
  int32_t days[3];
  ravo_money results[3];
  ravo_error error = RAVO_ERROR_INIT;
  lay_out_texts(&column, 0, texts, 3);
  column.offsets[ROWS_BEFORE + 2] = 1000;
  EXPECT(ravo_bank_find_column(NULL, &column.column, 0, fresh_codes(&found), NULL, NULL, &error) ==
         RAVO_RANGE);
  EXPECT(error.position == 1);
  EXPECT(ravo_suite_table_find_column(&column.column, 0, days, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_RANGE);
  EXPECT(ravo_day_read_column(&column.column, 0, 0, days, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_RANGE);
  EXPECT(ravo_convert_column(0, &column.column, 0, 0, 0, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_RANGE);
  lay_out_numbers(&column, 1, 8, numbers, 3, 9);
  column.indices[ROWS_BEFORE + 1] = 3;
  EXPECT(ravo_money_round_column(&column.column, 0, 1, 0, results, fresh_codes(&found), NULL, NULL, &error) ==
         RAVO_RANGE);
  EXPECT(error.position == 1);
  lay_out_numbers(&column, 1, 4, numbers, 3, 9);
  column.indices[ROWS_BEFORE + 2] = 200;
  EXPECT(ravo_day_format_column(&column.column, 0, 0, 0, fresh_codes(&found), NULL, NULL, &error) ==
         RAVO_RANGE);
  EXPECT(error.position == 2);
}

static void numbers_and_texts_are_not_taken_for_each_other(void) {
  static const char* const texts[] = {"0800"};
  static const int64_t numbers[] = {1};
  laid_out text;
  laid_out wide;
  laid_out narrow;
  room found;
  int32_t days[1];
  ravo_money results[1];
  int layout;
  for (layout = 0; layout < LAYOUTS_OF_NUMBERS; ++layout) {
    lay_out_texts(&text, layout == 0 ? 0 : 5, texts, 1);
    lay_out_numbers(&wide, layout, 8, numbers, 1, 9);
    lay_out_numbers(&narrow, layout, 4, numbers, 1, 9);
    EXPECT(ravo_check_column(1, &wide.column, 0, fresh_codes(&found), NULL, NULL, NULL) == RAVO_ARGUMENT);
    EXPECT(ravo_bank_find_column(NULL, &wide.column, 0, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
    EXPECT(ravo_suite_table_find_column(&narrow.column, 0, days, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
    EXPECT(ravo_day_read_column(&narrow.column, 0, 0, days, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
    EXPECT(ravo_convert_column(0, &narrow.column, 0, 0, 0, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
    EXPECT(ravo_money_round_column(&text.column, 0, 1, 0, results, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
    EXPECT(ravo_money_round_column(&narrow.column, 0, 1, 0, results, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
    EXPECT(ravo_day_format_column(&wide.column, 0, 0, 0, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
    EXPECT(ravo_day_format_column(&text.column, 0, 0, 0, fresh_codes(&found), NULL, NULL, NULL) ==
           RAVO_ARGUMENT);
  }
}

static void parameters_are_refused(void) {
  static const char* const texts[] = {"0800"};
  static const int64_t numbers[] = {1};
  laid_out text;
  laid_out wide;
  laid_out narrow;
  room found;
  int32_t days[1];
  ravo_money results[1];
  lay_out_texts(&text, 0, texts, 1);
  lay_out_numbers(&wide, 0, 8, numbers, 1, 9);
  lay_out_numbers(&narrow, 0, 4, numbers, 1, 9);
  EXPECT(ravo_bank_find_column(NULL, NULL, 0, fresh_codes(&found), NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_bank_find_column(NULL, &text.column, 2, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_bank_find_column(NULL, &text.column, 0, NULL, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_suite_table_find_column(&text.column, 0, NULL, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_suite_table_find_column(&text.column, 0, days, fresh_texts(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_suite_table_find_column(&text.column, 0, days, NULL, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_money_round_column(&wide.column, 0, 0, 0, results, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_RANGE);
  EXPECT(ravo_money_round_column(&wide.column, 0, 1, 3, results, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_money_round_column(&wide.column, 0, 1, 0, NULL, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_money_round_column(NULL, 0, 1, 0, results, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_day_read_column(&text.column, 0, 0, NULL, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_day_read_column(&text.column, 0, 0, days, fresh_texts(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_day_format_column(&narrow.column, 0, 0, 3, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_day_format_column(&narrow.column, 0, 0, 0, NULL, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_convert_column(-1, &text.column, 0, 0, 0, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_convert_column(0, &text.column, 0, 0, 2, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  EXPECT(ravo_convert_column(0, NULL, 0, 0, 0, fresh_codes(&found), NULL, NULL, NULL) == RAVO_ARGUMENT);
  text.column.size = 4;
  EXPECT(ravo_convert_column(0, &text.column, 0, 0, 0, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_ARGUMENT);
  /* NULs at the end of UTF-16 are a part of it. */
  lay_out_texts(&text, 3, texts, 1);
  EXPECT(ravo_convert_column(encoding_named("utf-16le"), &text.column, 0, encoding_named("utf-8"), 0,
                             fresh_codes(&found), NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_convert_column(encoding_named("utf-8"), &text.column, 0, encoding_named("utf-16le"), 0,
                             fresh_codes(&found), NULL, NULL, NULL) == RAVO_OK);
}

static int32_t RAVO_CALL stop_at_once(void* context, size_t done, size_t total) {
  EXPECT(done == 3 && total == 3);
  ++*(int*)context;
  return 5;
}

static void progress_is_heard_everywhere(void) {
  static const char* const texts[] = {"0800", "", "x"};
  static const int64_t numbers[] = {1, 2, 3};
  laid_out column;
  room found;
  int32_t days[3];
  ravo_money results[3];
  int calls = 0;
  lay_out_texts(&column, 2, texts, 3);
  EXPECT(ravo_bank_find_column(NULL, &column.column, 0, fresh_codes(&found), stop_at_once, &calls, NULL) ==
         RAVO_STOPPED);
  EXPECT(ravo_suite_table_find_column(&column.column, 0, days, fresh_codes(&found), stop_at_once, &calls,
                                      NULL) == RAVO_STOPPED);
  EXPECT(ravo_day_read_column(&column.column, 0, 0, days, fresh_codes(&found), stop_at_once, &calls, NULL) ==
         RAVO_STOPPED);
  EXPECT(ravo_convert_column(0, &column.column, 0, 0, 0, fresh_codes(&found), stop_at_once, &calls, NULL) ==
         RAVO_STOPPED);
  lay_out_numbers(&column, 0, 8, numbers, 3, 9);
  EXPECT(ravo_money_round_column(&column.column, 0, 1, 0, results, fresh_codes(&found), stop_at_once, &calls,
                                 NULL) == RAVO_STOPPED);
  lay_out_numbers(&column, 0, 4, numbers, 3, 9);
  EXPECT(ravo_day_format_column(&column.column, 0, 0, 0, fresh_codes(&found), stop_at_once, &calls, NULL) ==
         RAVO_STOPPED);
  EXPECT(calls == 6);
}

/* Calls each function over a dictionary, which allocates, until there is memory enough. */
static ravo_status call_over_dictionary(int function) {
  static const char* const texts[] = {"0800", "\xC4\x8C\xC3\xADslo", "2026-11-21"};
  static const int64_t numbers[] = {1, 2, 3};
  laid_out column;
  room found;
  int32_t days[3];
  ravo_money results[3];
  lay_out_texts(&column, 5, texts, 3);
  switch (function) {
    case 0:
      return ravo_bank_find_column(NULL, &column.column, 0, fresh_texts(&found), NULL, NULL, NULL);
    case 1:
      return ravo_suite_table_find_column(&column.column, 0, days, fresh_codes(&found), NULL, NULL, NULL);
    case 2:
      return ravo_day_read_column(&column.column, 0, 0, days, fresh_codes(&found), NULL, NULL, NULL);
    case 3:
      return ravo_convert_column(encoding_named("utf-8"), &column.column, 0, encoding_named("utf-16le"), 0,
                                 fresh_texts(&found), NULL, NULL, NULL);
    case 4:
      lay_out_numbers(&column, 1, 8, numbers, 3, 9);
      return ravo_money_round_column(&column.column, 0, 1, 0, results, fresh_codes(&found), NULL, NULL, NULL);
    default:
      lay_out_numbers(&column, 1, 4, numbers, 3, 9);
      return ravo_day_format_column(&column.column, 0, RAVO_DAY_1970, 0, fresh_texts(&found), NULL, NULL,
                                    NULL);
  }
}

static void denied_memory_is_told(void) {
  int function;
  for (function = 0; function < 6; ++function) {
    ravo_status status = RAVO_MEMORY;
    size_t allowed;
    if (!allocations_are_counted) continue;
    for (allowed = 0; status == RAVO_MEMORY && allowed < 100; ++allowed) {
      deny_allocations_after(allowed);
      status = call_over_dictionary(function);
      allow_allocations();
      EXPECT(allowed > 0 || status == RAVO_MEMORY);
    }
    EXPECT(status == RAVO_OK);
  }
}

static void plain_columns_allocate_nothing(void) {
  static const char* const texts[] = {"0800", "Profil", "2026-11-21"};
  static const int64_t numbers[] = {1, 2, 3};
  const size_t before = allocation_count();
  laid_out column;
  room found;
  int32_t days[3];
  ravo_money results[3];
  lay_out_texts(&column, 0, texts, 3);
  EXPECT(ravo_bank_find_column(NULL, &column.column, 0, fresh_texts(&found), NULL, NULL, NULL) == RAVO_OK);
  EXPECT(ravo_suite_table_find_column(&column.column, 0, days, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_OK);
  EXPECT(ravo_day_read_column(&column.column, 0, 0, days, fresh_codes(&found), NULL, NULL, NULL) == RAVO_OK);
  lay_out_numbers(&column, 0, 8, numbers, 3, 9);
  EXPECT(ravo_money_round_column(&column.column, 0, 1, 0, results, fresh_codes(&found), NULL, NULL, NULL) ==
         RAVO_OK);
  lay_out_numbers(&column, 0, 4, numbers, 3, 9);
  EXPECT(ravo_day_format_column(&column.column, 0, 0, 0, fresh_texts(&found), NULL, NULL, NULL) == RAVO_OK);
  EXPECT(allocation_count() == before);
}

void test_columns_values(void) {
  columns_have_banks();
  columns_have_banks_of_a_list();
  columns_have_numbers_of_tables();
  every_table_has_its_number();
  columns_have_rounded_amounts();
  amounts_can_be_rounded_in_place();
  columns_have_days();
  columns_of_days_have_texts();
  columns_are_converted();
  columns_are_converted_back();
  rows_are_texts_of_their_own();
  texts_that_fit_no_width_end_the_call();
  many_rows_are_converted();
  broken_rows_end_every_call();
  numbers_and_texts_are_not_taken_for_each_other();
  parameters_are_refused();
  progress_is_heard_everywhere();
  denied_memory_is_told();
  plain_columns_allocate_nothing();
}

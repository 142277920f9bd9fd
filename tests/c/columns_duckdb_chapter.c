#include "chapters.h"
#include "expect.h"

/* Strings of DuckDB, which are views. */
struct duckdb_texts {
  const char* type;
  size_t rows;
  const uint8_t* views;
  const uint8_t* validity;
  const uint8_t* data;
  int64_t data_size;
  const uint16_t* codes;
};

#include "duckdb_columns.inc"

/* Vectors of DuckDB without a copy: values, and validity in words of 64 bits. */
static ravo_column column_of_vector(ravo_layout layout, int32_t width, const void* values,
                                    const uint8_t* validity) {
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = layout;
  column.width = width;
  column.length = DUCKDB_ROWS;
  column.values = values;
  column.validity = validity;
  return column;
}

static void expect_duckdb_codes(ravo_column column, const uint16_t* expected) {
  uint16_t codes[DUCKDB_ROWS];
  ravo_answers answers = RAVO_ANSWERS_INIT;
  size_t offset;
  answers.codes = codes;
  for (offset = 0; offset < DUCKDB_ROWS; offset += 13) {
    column.offset = offset;
    column.length = DUCKDB_ROWS - offset;
    EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
    EXPECT(memcmp(codes, expected + offset, column.length * sizeof *codes) == 0);
  }
}

static void strings_of_duckdb_are_views(void) {
  size_t i;
  for (i = 0; i < sizeof DUCKDB_TEXTS / sizeof *DUCKDB_TEXTS; ++i) {
    const struct duckdb_texts* texts = &DUCKDB_TEXTS[i];
    const void* buffers[1];
    ravo_column column = column_of_vector(RAVO_LAYOUT_VIEWS, 0, texts->views, texts->validity);
    buffers[0] = texts->data;
    column.buffers = buffers;
    column.buffer_sizes = &texts->data_size;
    column.buffer_count = 1;
    EXPECT(texts->rows == DUCKDB_ROWS && texts->validity != NULL && texts->data_size > 100);
    expect_duckdb_codes(column, texts->codes);
  }
}

static void enums_of_duckdb_are_dictionaries(void) {
  enum { NAMES = sizeof DUCKDB_ENUM_NAMES / sizeof *DUCKDB_ENUM_NAMES };
  char names[1024] = "";
  int32_t offsets[NAMES + 1] = {0};
  ravo_column entries = RAVO_COLUMN_INIT;
  ravo_column column =
      column_of_vector(RAVO_LAYOUT_DICTIONARY_UNSIGNED, 1, DUCKDB_ENUM, DUCKDB_ENUM_VALIDITY);
  size_t i;
  for (i = 0; i < NAMES; ++i) {
    offsets[i + 1] = offsets[i] + (int32_t)strlen(DUCKDB_ENUM_NAMES[i]);
    memcpy(names + offsets[i], DUCKDB_ENUM_NAMES[i], strlen(DUCKDB_ENUM_NAMES[i]));
  }
  entries.layout = RAVO_LAYOUT_OFFSETS_32;
  entries.length = NAMES;
  entries.values = offsets;
  entries.data = names;
  entries.data_size = (size_t)offsets[NAMES];
  column.dictionary = &entries;
  expect_duckdb_codes(column, DUCKDB_ENUM_CODES);
}

static void decimals_of_duckdb_are_amounts(void) {
  const ravo_column column = column_of_vector(RAVO_LAYOUT_NUMBERS, 8, DUCKDB_MONEY, DUCKDB_MONEY_VALIDITY);
  ravo_money results[DUCKDB_ROWS];
  ravo_answers answers = RAVO_ANSWERS_INIT;
  EXPECT(ravo_money_round_column(&column, 0, 100, RAVO_ROUND_HALF_AWAY, results, &answers, NULL, NULL,
                                 NULL) == RAVO_OK);
  EXPECT(memcmp(results, DUCKDB_MONEY_ROUNDED, sizeof results) == 0);
  EXPECT(answers.wrong == 0 && answers.nulls == 4);
}

static void dates_of_duckdb_are_days(void) {
  const ravo_column column = column_of_vector(RAVO_LAYOUT_NUMBERS, 4, DUCKDB_DATES, NULL);
  char data[DUCKDB_ROWS * 10];
  ravo_texts texts = RAVO_TEXTS_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  size_t i;
  texts.layout = RAVO_LAYOUT_FIXED;
  texts.width = 10;
  texts.data = data;
  texts.data_size = sizeof data;
  answers.texts = &texts;
  EXPECT(ravo_day_format_column(&column, 0, RAVO_DAY_1970, RAVO_DATE_ISO, &answers, NULL, NULL, NULL) ==
         RAVO_OK);
  for (i = 0; i < DUCKDB_ROWS; ++i) EXPECT(memcmp(data + 10 * i, DUCKDB_DATE_TEXTS[i], 10) == 0);
}

static void written_dates_of_duckdb_are_read(void) {
  const void* buffers[1];
  const int64_t size = sizeof DUCKDB_CZECH_DATES_DATA;
  int32_t days[DUCKDB_ROWS];
  ravo_answers answers = RAVO_ANSWERS_INIT;
  ravo_column column = column_of_vector(RAVO_LAYOUT_VIEWS, 0, DUCKDB_CZECH_DATES, NULL);
  buffers[0] = DUCKDB_CZECH_DATES_DATA;
  column.buffers = buffers;
  column.buffer_sizes = &size;
  column.buffer_count = 1;
  EXPECT(ravo_day_read_column(&column, 0, RAVO_DAY_1970, days, &answers, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(answers.wrong == 0 && memcmp(days, DUCKDB_DATES, sizeof days) == 0);
}

void test_columns_duckdb(void) {
  strings_of_duckdb_are_views();
  enums_of_duckdb_are_dictionaries();
  decimals_of_duckdb_are_amounts();
  dates_of_duckdb_are_days();
  written_dates_of_duckdb_are_read();
}

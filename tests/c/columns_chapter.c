#include "chapters.h"
#include "expect.h"

/* Company numbers: correct with blanks, wrong in its check digit, with a letter, empty, not UTF-8, correct.
 */
#define COLUMN_TEXT \
  "046 25 781"      \
  "04625782"        \
  "0462x781"        \
  "0462\xFF"        \
  "04625781"
#define COLUMN_ROWS 6
static const int32_t column_offsets[] = {0, 10, 18, 26, 26, 31, 39};
static const uint16_t column_codes[] = {0, 104, 102, 101, RAVO_CODE_NOT_UTF8, 0};

static ravo_column column_of_offsets(void) {
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_OFFSETS_32;
  column.length = COLUMN_ROWS;
  column.values = column_offsets;
  column.data = COLUMN_TEXT;
  column.data_size = sizeof COLUMN_TEXT - 1;
  return column;
}

/* Checks a column of company numbers, trusted and not, and expects codes and how many of them are wrong. */
static void expect_codes(const ravo_column* column, const uint16_t* expected, size_t wrong, size_t nulls) {
  uint32_t flags;
  for (flags = 0; flags <= RAVO_TRUSTED; ++flags) {
    uint16_t codes[64];
    ravo_answers answers = RAVO_ANSWERS_INIT;
    answers.codes = codes;
    EXPECT(ravo_check_column(RAVO_KIND_ICO, column, flags, &answers, NULL, NULL, NULL) == RAVO_OK);
    EXPECT(memcmp(codes, expected, column->length * sizeof *codes) == 0);
    EXPECT(answers.wrong == wrong && answers.nulls == nulls);
  }
}

static void expect_broken(const ravo_column* column, size_t row) {
  ravo_error error = RAVO_ERROR_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  answers.wrong = 77;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, column, 0, &answers, NULL, NULL, &error) == RAVO_RANGE);
  EXPECT(error.status == RAVO_RANGE && error.position == row);
  EXPECT(answers.wrong == 77);
}

static void expect_refused(const ravo_column* column) {
  ravo_answers answers = RAVO_ANSWERS_INIT;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, column, RAVO_TRUSTED, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
}

static void columns_of_offsets_have_codes(void) {
  int64_t large[COLUMN_ROWS + 1];
  size_t i;
  ravo_column column = column_of_offsets();
  expect_codes(&column, column_codes, 4, 0);
  column.data_size = RAVO_SIZE_UNKNOWN;
  expect_codes(&column, column_codes, 4, 0);
  for (i = 0; i <= COLUMN_ROWS; ++i) large[i] = column_offsets[i];
  column.layout = RAVO_LAYOUT_OFFSETS_64;
  column.values = large;
  expect_codes(&column, column_codes, 4, 0);
}

static void columns_may_be_unaligned(void) {
  char bytes[1 + sizeof column_offsets];
  ravo_column column = column_of_offsets();
  memcpy(bytes + 1, column_offsets, sizeof column_offsets);
  column.values = bytes + 1;
  expect_codes(&column, column_codes, 4, 0);
}

static void columns_may_be_slices(void) {
  ravo_column column = column_of_offsets();
  column.offset = 2;
  column.length = 3;
  expect_codes(&column, column_codes + 2, 3, 0);
  column.length = 0;
  expect_codes(&column, column_codes, 0, 0);
}

static void columns_have_null_rows(void) {
  static const uint16_t expected[] = {RAVO_CODE_NULL, 102, 101, RAVO_CODE_NULL, 0};
  /* From bit 11 on: 0 1 1 0 1, and ones before. */
  static const uint8_t validity[] = {0xFF, 0xB7};
  int32_t offsets[17] = {0};
  ravo_column column = column_of_offsets();
  memcpy(offsets + 10, column_offsets, sizeof column_offsets);
  column.values = offsets;
  column.offset = 11;
  column.length = 5;
  column.validity = validity;
  expect_codes(&column, expected, 2, 2);
}

static void null_rows_may_have_any_offsets(void) {
  static const int32_t offsets[] = {0, 10, 1000, 10, 18};
  static const uint16_t expected[] = {0, RAVO_CODE_NULL, RAVO_CODE_NULL, 104};
  static const uint8_t validity[] = {0x09};
  ravo_column column = column_of_offsets();
  column.values = offsets;
  column.length = 4;
  column.validity = validity;
  expect_codes(&column, expected, 1, 2);
}

static void broken_offsets_end_the_call(void) {
  static const int32_t backwards[] = {0, 10, 8, 26};
  static const int32_t outside[] = {0, 10, 18, 40};
  static const int32_t negative[] = {-1, 10, 18, 26};
  static const int64_t far_away[] = {0, 10, (int64_t)1 << 40};
  ravo_column column = column_of_offsets();
  column.length = 3;
  column.values = backwards;
  expect_broken(&column, 1);
  column.values = outside;
  expect_broken(&column, 2);
  column.values = negative;
  expect_broken(&column, 0);
  column.values = column_offsets;
  column.data = NULL;
  column.data_size = 0;
  expect_broken(&column, 0);
  column = column_of_offsets();
  column.layout = RAVO_LAYOUT_OFFSETS_64;
  column.length = 2;
  column.values = far_away;
  expect_broken(&column, 1);
}

/* A view of a text in a buffer, or of one that is in the view itself. */
static void write_view(char* view, int32_t length, const char* text, int32_t buffer, int32_t place) {
  memset(view, 0, 16);
  memcpy(view, &length, 4);
  memcpy(view + 4, text, length <= 12 ? (size_t)length : 4);
  if (length > 12) {
    memcpy(view + 8, &buffer, 4);
    memcpy(view + 12, &place, 4);
  }
}

static const char view_buffer[] = "____\x49\xC4\x8C: 046 25 781";

static ravo_column column_of_views(const char* views, size_t length) {
  static const void* buffers[] = {"", view_buffer, NULL};
  static const int64_t sizes[] = {0, sizeof view_buffer - 1, 1000};
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_VIEWS;
  column.length = length;
  column.values = views;
  column.buffers = buffers;
  column.buffer_sizes = sizes;
  column.buffer_count = 3;
  return column;
}

static void columns_of_views_have_codes(void) {
  static const uint16_t expected[] = {0, 104, 101, 0};
  char views[4 * 16];
  ravo_column column = column_of_views(views, 4);
  write_view(views, 8, "04625781", 0, 0);
  write_view(views + 16, 12, "  04625782  ", 0, 0);
  write_view(views + 32, 0, "", 0, 0);
  write_view(views + 48, 15, "I\xC4\x8C:", 1, 4);
  expect_codes(&column, expected, 2, 0);
  column.offset = 1;
  column.length = 3;
  expect_codes(&column, expected + 1, 2, 0);
}

static void views_out_of_range_end_the_call(void) {
  static const int32_t places[][3] = {{15, 1, 5}, {15, 1, -1}, {16, 1, 4},
                                      {15, 3, 0}, {15, -1, 0}, {15, 2, 0},
                                      {-1, 1, 4}, {15, 0, 0},  {2147483647, 1, 2147483647}};
  size_t i;
  for (i = 0; i < sizeof places / sizeof *places; ++i) {
    char views[2 * 16];
    ravo_column column = column_of_views(views, 2);
    write_view(views, 1, "1", 0, 0);
    write_view(views + 16, 13, "0000", places[i][1], places[i][2]);
    memcpy(views + 16, &places[i][0], 4);
    expect_broken(&column, 1);
  }
}

static void columns_of_one_width_have_codes(void) {
  static const uint16_t expected[] = {0, 104, 102, 101};
  ravo_column column = RAVO_COLUMN_INIT;
  column.layout = RAVO_LAYOUT_FIXED;
  column.width = 9;
  column.length = 4;
  column.values =
      "04625781\0"
      "04625782 "
      "a\0\0\0\0\0\0\0\0"
      "\0\0\0\0\0\0\0\0\0";
  expect_codes(&column, expected, 3, 0);
  column.offset = 1;
  column.length = 3;
  expect_codes(&column, expected + 1, 3, 0);
}

static void columns_of_dictionaries_have_codes(void) {
  static const int8_t bytes[] = {5, 1, 1, 0, 9};
  static const int16_t shorts[] = {5, 1, 1, 0, -9};
  static const int32_t words[] = {5, 1, 1, 0, 9};
  static const int64_t longs[] = {5, 1, 1, 0, (int64_t)1 << 32};
  static const void* const indices[] = {bytes, shorts, words, longs};
  static const uint16_t expected[] = {0, 104, 104, 0};
  const ravo_column entries = column_of_offsets();
  int32_t width;
  size_t i;
  for (i = 0, width = 1; i < 4; ++i, width *= 2) {
    ravo_column column = RAVO_COLUMN_INIT;
    column.width = width;
    column.values = indices[i];
    column.dictionary = &entries;
    for (column.layout = RAVO_LAYOUT_DICTIONARY; column.layout <= RAVO_LAYOUT_DICTIONARY_UNSIGNED;
         ++column.layout) {
      column.length = 4;
      expect_codes(&column, expected, 2, 0);
      column.length = 5;
      expect_broken(&column, 4);
    }
  }
}

static void indices_have_a_sign_or_not(void) {
  static const uint8_t last[] = {255};
  static const uint16_t expected[] = {104};
  char values[256 * 8];
  ravo_column entries = RAVO_COLUMN_INIT;
  ravo_column column = RAVO_COLUMN_INIT;
  memset(values, '1', sizeof values);
  entries.layout = RAVO_LAYOUT_FIXED;
  entries.width = 8;
  entries.length = 256;
  entries.values = values;
  column.layout = RAVO_LAYOUT_DICTIONARY_UNSIGNED;
  column.width = 1;
  column.length = 1;
  column.values = last;
  column.dictionary = &entries;
  expect_codes(&column, expected, 1, 0);
  column.layout = RAVO_LAYOUT_DICTIONARY;
  expect_broken(&column, 0);
}

static void dictionaries_have_null_and_broken_entries(void) {
  static const uint8_t indices[] = {2, 0, 1, 2};
  static const int32_t offsets[] = {0, 10, 8, 26};
  static const uint8_t entries_valid[] = {0x06};
  static const uint8_t rows_valid[] = {0x0B};
  static const uint16_t expected[] = {0, RAVO_CODE_NULL, RAVO_CODE_NULL, 0};
  static const int32_t repaired[] = {0, 10, 31, 39};
  ravo_column entries = column_of_offsets();
  ravo_column column = RAVO_COLUMN_INIT;
  entries.length = 3;
  entries.values = offsets;
  entries.validity = entries_valid;
  column.layout = RAVO_LAYOUT_DICTIONARY;
  column.width = 1;
  column.length = 4;
  column.values = indices;
  column.dictionary = &entries;
  expect_broken(&column, 2);
  entries.values = repaired;
  column.validity = rows_valid;
  expect_codes(&column, expected, 0, 2);
}

static void answers_are_bits_too(void) {
  uint8_t validity[2] = {0xFF, 0xFF};
  ravo_answers answers = RAVO_ANSWERS_INIT;
  const ravo_column column = column_of_offsets();
  answers.validity = validity;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(validity[0] == 0x21 && validity[1] == 0xFF);
  EXPECT(answers.wrong == 4);
}

static void answers_have_canonical_forms(void) {
  static const int32_t expected[] = {0, 8, 8, 8, 8, 8, 16};
  int32_t offsets[COLUMN_ROWS + 1];
  int64_t large[COLUMN_ROWS + 1];
  char data[20] = "";
  ravo_texts texts = RAVO_TEXTS_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  const ravo_column column = column_of_offsets();
  answers.texts = &texts;
  texts.layout = RAVO_LAYOUT_OFFSETS_32;
  texts.offsets = offsets;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(texts.data_length == 16 && answers.wrong == 4);
  texts.data = data;
  texts.data_size = sizeof data;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(memcmp(offsets, expected, sizeof expected) == 0);
  EXPECT_TEXT(data, "0462578104625781");
  texts.layout = RAVO_LAYOUT_OFFSETS_64;
  texts.offsets = large;
  texts.data_size = 15;
  memset(data, 'x', 16);
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_BUFFER);
  EXPECT(texts.data_length == 16 && large[5] == 8 && large[6] == 16 && answers.wrong == 4);
  EXPECT_TEXT(data, "04625781xxxxxxxx");
}

static void answers_have_usual_spellings_of_one_width(void) {
  static const char data[] =
      "cz6508000000192000145399"
      "cz6508000000192000145398";
  static const uint8_t indices[] = {0, 1, 0};
  ravo_column entries = RAVO_COLUMN_INIT;
  ravo_column column = RAVO_COLUMN_INIT;
  char spelled[3 * 30];
  ravo_texts texts = RAVO_TEXTS_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  entries.layout = RAVO_LAYOUT_FIXED;
  entries.width = 24;
  entries.length = 2;
  entries.values = data;
  column.layout = RAVO_LAYOUT_DICTIONARY;
  column.width = 1;
  column.length = 3;
  column.values = indices;
  column.dictionary = &entries;
  texts.layout = RAVO_LAYOUT_FIXED;
  texts.width = 30;
  texts.data = spelled;
  texts.data_size = sizeof spelled;
  answers.texts = &texts;
  EXPECT(ravo_respell_column(RAVO_KIND_IBAN, &column, 0, &answers, NULL, NULL, NULL) == RAVO_OK);
  EXPECT_TEXT(spelled, "CZ65 0800 0000 1920 0014 5399");
  EXPECT_TEXT(spelled + 30, "");
  EXPECT_TEXT(spelled + 60, "CZ65 0800 0000 1920 0014 5399");
  texts.width = 28;
  EXPECT(ravo_respell_column(RAVO_KIND_IBAN, &column, 0, &answers, NULL, NULL, NULL) == RAVO_RANGE);
}

static void descriptions_are_refused(void) {
  ravo_column column = column_of_offsets();
  ravo_column other = column_of_offsets();
  ravo_answers answers = RAVO_ANSWERS_INIT;
  ravo_texts texts = RAVO_TEXTS_INIT;
  EXPECT(ravo_check_column(99, &column, 0, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_check_column(RAVO_KIND_ICO, NULL, 0, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 2, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, NULL, NULL, NULL, NULL) == RAVO_ARGUMENT);
  answers.size = 8;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
  answers.size = sizeof answers;
  answers.texts = &texts;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
  texts.layout = RAVO_LAYOUT_OFFSETS_32;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_ARGUMENT);
  column.size = 8;
  expect_refused(&column);
  column = column_of_offsets();
  column.layout = 0;
  expect_refused(&column);
  column.layout = RAVO_LAYOUT_DICTIONARY;
  column.width = 4;
  expect_refused(&column);
  column.dictionary = &column;
  expect_refused(&column);
  column.dictionary = &other;
  column.width = 3;
  expect_refused(&column);
  column = column_of_offsets();
  column.dictionary = &other;
  expect_refused(&column);
  column = column_of_offsets();
  column.values = NULL;
  expect_refused(&column);
  column = column_of_offsets();
  column.data = NULL;
  expect_refused(&column);
  column = column_of_offsets();
  column.layout = RAVO_LAYOUT_FIXED;
  expect_refused(&column);
  column = column_of_offsets();
  column.buffer_count = 1;
  expect_refused(&column);
}

static void columns_past_all_memory_are_refused(void) {
  static const uint8_t indices[] = {0};
  ravo_column column = column_of_offsets();
  ravo_column entries = RAVO_COLUMN_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  column.length = (size_t)-1;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_RANGE);
  column.length = 1;
  column.offset = (size_t)-1;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_RANGE);
  entries.layout = RAVO_LAYOUT_FIXED;
  entries.width = 1;
  entries.length = (size_t)-1 / 2 - 2;
  entries.values = "1";
  column = entries;
  column.layout = RAVO_LAYOUT_DICTIONARY;
  column.length = 1;
  column.values = indices;
  column.dictionary = &entries;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, NULL, NULL, NULL) == RAVO_MEMORY);
}

/* Counts its calls, and ends the work at one of them. */
struct progress_log {
  int calls;
  int last;
  size_t done;
  size_t total;
};

static int32_t RAVO_CALL log_progress(void* context, size_t done, size_t total) {
  struct progress_log* log = (struct progress_log*)context;
  log->done = done;
  log->total = total;
  return ++log->calls == log->last ? -7 : 0;
}

static void progress_can_end_the_work(void) {
  static char values[10000];
  static uint16_t codes[10000];
  struct progress_log log = {0, 0, 0, 0};
  ravo_error error = RAVO_ERROR_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  ravo_column column = RAVO_COLUMN_INIT;
  memset(values, '1', sizeof values);
  column.layout = RAVO_LAYOUT_FIXED;
  column.width = 1;
  column.length = sizeof values;
  column.values = values;
  answers.codes = codes;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, log_progress, &log, &error) == RAVO_OK);
  EXPECT(log.calls > 1 && log.done == 10000 && log.total == 10000);
  EXPECT(answers.wrong == 10000 && codes[0] == 103 && codes[9999] == 103);
  log.calls = 0;
  log.last = 2;
  answers.wrong = 77;
  EXPECT(ravo_check_column(RAVO_KIND_ICO, &column, 0, &answers, log_progress, &log, &error) == RAVO_STOPPED);
  EXPECT(error.code == -7 && log.calls == 2 && answers.wrong == 77);
}

static void columns_have_checksums(void) {
  static const int32_t offsets[] = {0, 9, 9, 10};
  static const uint8_t validity[] = {0x03};
  uint32_t results[3] = {7, 7, 7};
  ravo_column column = column_of_offsets();
  column.length = 3;
  column.values = offsets;
  column.data = "123456789\xFF";
  column.data_size = 10;
  EXPECT(ravo_crc32_column(&column, 0, results, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(results[0] == 0xCBF43926u && results[1] == 0 && results[2] == 0xFF000000u);
  column.validity = validity;
  EXPECT(ravo_crc32_column(&column, RAVO_TRUSTED, results, NULL, NULL, NULL) == RAVO_OK);
  EXPECT(results[2] == 0);
  EXPECT(ravo_crc32_column(&column, 0, NULL, NULL, NULL, NULL) == RAVO_ARGUMENT);
  EXPECT(ravo_crc32_column(NULL, 0, results, NULL, NULL, NULL) == RAVO_ARGUMENT);
}

void test_columns(void) {
  columns_of_offsets_have_codes();
  columns_may_be_unaligned();
  columns_may_be_slices();
  columns_have_null_rows();
  null_rows_may_have_any_offsets();
  broken_offsets_end_the_call();
  columns_of_views_have_codes();
  views_out_of_range_end_the_call();
  columns_of_one_width_have_codes();
  columns_of_dictionaries_have_codes();
  indices_have_a_sign_or_not();
  dictionaries_have_null_and_broken_entries();
  answers_are_bits_too();
  answers_have_canonical_forms();
  answers_have_usual_spellings_of_one_width();
  descriptions_are_refused();
  columns_past_all_memory_are_refused();
  progress_can_end_the_work();
  columns_have_checksums();
}

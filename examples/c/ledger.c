/*
 * Checks a ledger by columns: reads a table of Czech bookkeeping (UTF-8, semicolons), lays three of its
 * columns out as data frames do, checks each in one call and prints what is wrong.
 *
 * usage: example_ledger FILE
 */
#include <ravo.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* The columns to check: account, variable symbol and EAN, by their place in the table. */
static const struct {
  size_t place;
  ravo_kind kind;
} CHECKS[] = {{6, RAVO_KIND_ACCOUNT}, {5, RAVO_KIND_VARIABLE_SYMBOL}, {7, RAVO_KIND_EAN}};
#define CHECK_COUNT (sizeof CHECKS / sizeof *CHECKS)

/* A column under construction: where the text of each row ends, all texts, and a bit for each row that has
 * one. */
struct builder {
  int32_t* offsets;
  uint8_t* validity;
  char* data;
  size_t rows;
  size_t size;
};

static void* allocate(size_t size) {
  void* memory = calloc(1, size);
  if (memory == NULL) {
    fputs("there is no memory left\n", stderr);
    exit(2);
  }
  return memory;
}

/* No column has more rows than the file has lines, or more text than the file. */
static struct builder new_builder(size_t file_size, size_t lines) {
  struct builder builder = {NULL, NULL, NULL, 0, 0};
  builder.offsets = allocate((lines + 1) * sizeof *builder.offsets);
  builder.validity = allocate(lines / 8 + 1);
  builder.data = allocate(file_size);
  return builder;
}

static void free_builder(struct builder* builder) {
  free(builder->offsets);
  free(builder->validity);
  free(builder->data);
}

/* An empty field is a row without a value. */
static void append(struct builder* builder, const char* text, size_t length) {
  if (length > 0) builder->validity[builder->rows / 8] |= (uint8_t)(1 << builder->rows % 8);
  memcpy(builder->data + builder->size, text, length);
  builder->size += length;
  builder->offsets[++builder->rows] = (int32_t)builder->size;
}

/* Returns where the field at `at` ends: at a semicolon that is not between quotes, or with the line. */
static const char* field_end(const char* at, const char* line_end) {
  int quoted = 0;
  for (; at != line_end && (quoted || *at != ';'); ++at) quoted ^= *at == '"';
  return at;
}

static void append_line(struct builder* builders, const char* at, const char* line_end) {
  size_t place = 0;
  for (;; ++place, ++at) {
    const char* const end = field_end(at, line_end);
    size_t i;
    for (i = 0; i < CHECK_COUNT; ++i) {
      if (CHECKS[i].place == place) append(&builders[i], at, (size_t)(end - at));
    }
    if (end == line_end) return;
    at = end;
  }
}

/* Prints the rows of a column that are wrong, with their lines: the first row is on line 2. */
static int print_findings(const struct builder* builder, ravo_kind kind) {
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_answers answers = RAVO_ANSWERS_INIT;
  ravo_error error = RAVO_ERROR_INIT;
  size_t row;
  column.layout = RAVO_LAYOUT_OFFSETS_32;
  column.length = builder->rows;
  column.validity = builder->validity;
  column.values = builder->offsets;
  column.data = builder->data;
  column.data_size = builder->size;
  answers.codes = allocate(builder->rows * sizeof *answers.codes);
  if (ravo_check_column(kind, &column, 0, &answers, NULL, NULL, &error) != RAVO_OK) {
    fprintf(stderr, "%s\n", error.message);
    exit(2);
  }
  for (row = 0; row < builder->rows; ++row) {
    const uint16_t code = answers.codes[row];
    const char* const text = builder->data + builder->offsets[row];
    if (code == RAVO_CODE_CORRECT || code == RAVO_CODE_NULL) continue;
    printf("line %lu: %.*s: %s\n", (unsigned long)row + 2,
           (int)(builder->offsets[row + 1] - builder->offsets[row]), text,
           code == RAVO_CODE_NOT_UTF8 ? "not UTF-8" : ravo_reason_sentence(code, RAVO_LANGUAGE_ENGLISH));
  }
  printf("%s: %lu of %lu wrong, %lu empty\n", ravo_kind_title(kind, RAVO_LANGUAGE_ENGLISH),
         (unsigned long)answers.wrong, (unsigned long)builder->rows, (unsigned long)answers.nulls);
  free(answers.codes);
  return answers.wrong != 0;
}

static char* read_file(const char* name, size_t* size) {
  FILE* const file = fopen(name, "rb");
  char* text;
  long end;
  if (file == NULL || fseek(file, 0, SEEK_END) != 0 || (end = ftell(file)) < 0) {
    fprintf(stderr, "%s cannot be read\n", name);
    exit(2);
  }
  rewind(file);
  text = allocate((size_t)end + 1);
  *size = fread(text, 1, (size_t)end, file);
  fclose(file);
  return text;
}

static size_t count_lines(const char* text, size_t size) {
  size_t lines = 1;
  size_t i;
  for (i = 0; i < size; ++i) lines += text[i] == '\n';
  return lines;
}

/* The end of the line at `at`, without its line break. */
static const char* line_end(const char* at, const char* end) {
  const char* const found = memchr(at, '\n', (size_t)(end - at));
  const char* const stop = found == NULL ? end : found;
  return stop != at && stop[-1] == '\r' ? stop - 1 : stop;
}

int main(int argc, char** argv) {
  struct builder builders[CHECK_COUNT];
  int found = 0;
  size_t size;
  size_t i;
  char* text;
  const char* at;
  if (argc != 2) {
    fputs("usage: example_ledger FILE\n", stderr);
    return 2;
  }
  text = read_file(argv[1], &size);
  for (i = 0; i < CHECK_COUNT; ++i) builders[i] = new_builder(size + 1, count_lines(text, size));
  /* The first line has the captions. */
  for (at = memchr(text, '\n', size); at != NULL && at + 1 < text + size;
       at = memchr(at, '\n', (size_t)(text + size - at))) {
    ++at;
    append_line(builders, at, line_end(at, text + size));
  }
  for (i = 0; i < CHECK_COUNT; ++i) {
    found |= print_findings(&builders[i], CHECKS[i].kind);
    free_builder(&builders[i]);
  }
  free(text);
  return found;
}

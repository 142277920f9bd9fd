#ifndef RAVO_TESTS_COLUMN_LAYOUTS_H
#define RAVO_TESTS_COLUMN_LAYOUTS_H

#include <ravo.h>

enum { MOST_ROWS = 16, ROWS_BEFORE = 3, LAYOUTS_OF_TEXTS = 6, LAYOUTS_OF_NUMBERS = 2 };

/* A column in one of the layouts, with its memory: a slice with rows before it, and null rows. */
typedef struct laid_out {
  ravo_column column;
  ravo_column entries;
  uint8_t validity[4];
  int64_t offsets[MOST_ROWS + ROWS_BEFORE + 1];
  char views[(MOST_ROWS + ROWS_BEFORE) * 16];
  char data[1024];
  uint8_t indices[MOST_ROWS + ROWS_BEFORE];
  const void* buffers[1];
  int64_t sizes[1];
} laid_out;

/* Lays texts out; null is a null row. The number of the layout is 0 to LAYOUTS_OF_TEXTS - 1. */
void lay_out_texts(laid_out* out, int layout, const char* const* texts, size_t count);

/* Lays numbers of 4 or 8 bytes out; row `null_row` is null. The number of the layout is 0 or 1. */
void lay_out_numbers(laid_out* out, int layout, int32_t width, const int64_t* numbers, size_t count,
                     size_t null_row);

#endif

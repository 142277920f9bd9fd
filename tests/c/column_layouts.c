#include "column_layouts.h"

#include <string.h>

static void begin(laid_out* out, size_t count) {
  const ravo_column fresh = RAVO_COLUMN_INIT;
  memset(out, 0, sizeof *out);
  out->column = fresh;
  out->entries = fresh;
  out->column.length = count;
  out->column.offset = ROWS_BEFORE;
  out->column.validity = out->validity;
}

static void set_valid(laid_out* out, size_t row) {
  const size_t bit = ROWS_BEFORE + row;
  out->validity[bit / 8] = (uint8_t)(out->validity[bit / 8] | 1u << bit % 8);
}

/* The texts one after the other; null rows have none. */
static void put_offsets(laid_out* out, const char* const* texts, size_t count) {
  size_t row;
  for (row = 0; row < count; ++row) {
    const int64_t begin_of_row = out->offsets[ROWS_BEFORE + row];
    const size_t length = texts[row] == NULL ? 0 : strlen(texts[row]);
    if (length != 0) memcpy(out->data + begin_of_row, texts[row], length);
    out->offsets[ROWS_BEFORE + row + 1] = begin_of_row + (int64_t)length;
  }
  out->column.layout = RAVO_LAYOUT_OFFSETS_64;
  out->column.values = out->offsets;
  out->column.data = out->data;
  out->column.data_size = (size_t)out->offsets[ROWS_BEFORE + count];
}

static void narrow_offsets(laid_out* out, size_t count) {
  size_t row;
  for (row = 0; row <= ROWS_BEFORE + count; ++row) {
    const int32_t offset = (int32_t)out->offsets[row];
    memcpy(out->views + 4 * row, &offset, sizeof offset);
  }
  out->column.layout = RAVO_LAYOUT_OFFSETS_32;
  out->column.values = out->views;
}

static void put_views(laid_out* out, size_t count) {
  size_t row;
  for (row = ROWS_BEFORE; row < ROWS_BEFORE + count; ++row) {
    const int32_t place = (int32_t)out->offsets[row];
    const int32_t length = (int32_t)out->offsets[row + 1] - place;
    char* view = out->views + 16 * row;
    memcpy(view, &length, 4);
    memcpy(view + 4, out->data + place, length <= 12 ? (size_t)length : 4);
    if (length > 12) memcpy(view + 12, &place, 4);
  }
  out->buffers[0] = out->data;
  out->sizes[0] = out->offsets[ROWS_BEFORE + count];
  out->column.layout = RAVO_LAYOUT_VIEWS;
  out->column.values = out->views;
  out->column.buffers = out->buffers;
  out->column.buffer_sizes = out->sizes;
  out->column.buffer_count = 1;
}

static void put_fixed(laid_out* out, const char* const* texts, size_t count) {
  enum { WIDTH = 48 };
  size_t row;
  memset(out->data, 0, sizeof out->data);
  for (row = 0; row < count; ++row) {
    if (texts[row] != NULL) memcpy(out->data + (ROWS_BEFORE + row) * WIDTH, texts[row], strlen(texts[row]));
  }
  out->column.layout = RAVO_LAYOUT_FIXED;
  out->column.width = WIDTH;
  out->column.values = out->data;
}

/* What the column is now becomes the entries, and the rows have them in their own order. */
static void put_dictionary(laid_out* out, ravo_layout layout) {
  size_t row;
  out->entries = out->column;
  out->entries.validity = NULL;
  for (row = 0; row < out->column.length; ++row) out->indices[ROWS_BEFORE + row] = (uint8_t)row;
  out->column.layout = layout;
  out->column.width = 1;
  out->column.values = out->indices;
  out->column.dictionary = &out->entries;
}

void lay_out_texts(laid_out* out, int layout, const char* const* texts, size_t count) {
  size_t row;
  begin(out, count);
  for (row = 0; row < count; ++row) {
    if (texts[row] != NULL) set_valid(out, row);
  }
  put_offsets(out, texts, count);
  if (layout == 1) narrow_offsets(out, count);
  if (layout == 2 || layout == 4) put_views(out, count);
  if (layout == 3) put_fixed(out, texts, count);
  if (layout == 4) put_dictionary(out, RAVO_LAYOUT_DICTIONARY);
  if (layout == 5) put_dictionary(out, RAVO_LAYOUT_DICTIONARY_UNSIGNED);
}

void lay_out_numbers(laid_out* out, int layout, int32_t width, const int64_t* numbers, size_t count,
                     size_t null_row) {
  size_t row;
  begin(out, count);
  for (row = 0; row < count; ++row) {
    const int32_t narrow = (int32_t)numbers[row];
    char* place = out->data + (ROWS_BEFORE + row) * (size_t)width;
    if (row != null_row) set_valid(out, row);
    if (width == 8) memcpy(place, &numbers[row], 8);
    if (width == 4) memcpy(place, &narrow, 4);
  }
  out->column.layout = RAVO_LAYOUT_NUMBERS;
  out->column.width = width;
  out->column.values = out->data;
  if (layout == 1) put_dictionary(out, RAVO_LAYOUT_DICTIONARY);
}

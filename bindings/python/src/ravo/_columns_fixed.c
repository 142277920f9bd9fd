/* Columns of one width, as numpy has them. */
#include "_columns.h"

/* check_fixed(kind, bytes, width, first, count, codes): UTF-8 of one width, NULs at the end */
PyObject* CheckFixed(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  bytes_in bytes = {0};
  rows_in rows;
  totals sum = {0, 0};
  long long width = 0;
  ravo_error error = RAVO_ERROR_INIT;
  ravo_status status = RAVO_OK;
  if (!TakeCount("check_fixed", count, 6) || !TakeNumber(arguments[2], "width", 1, INT32_MAX, &width) ||
      !TakeBytes(arguments[1], &bytes))
    return NULL;
  PyObject* answer = NULL;
  if (TakeRows(arguments + 3, arguments[0], (size_t)(bytes.view.len / width), &rows)) {
    ravo_column column = RAVO_COLUMN_INIT;
    column.layout = RAVO_LAYOUT_FIXED;
    column.width = (int32_t)width;
    column.values = bytes.view.buf;
    column.offset = rows.first;
    column.length = rows.count;
    Py_BEGIN_ALLOW_THREADS;
    status = CheckRows(rows.kind, &column, RAVO_TRUSTED, rows.codes, &sum, &error);
    Py_END_ALLOW_THREADS;
    answer = EndRows(self, &rows, &sum, status, &error);
  }
  ReleaseBytes(&bytes);
  return answer;
}

/* Writes a character as UTF-8; what is none becomes a byte that no UTF-8 has. */
static char* PutCharacter(char* place, uint32_t character) {
  const int size = character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
  if (size == 1 || character > 0x10FFFF || (character >= 0xD800 && character < 0xE000)) {
    *place = (char)(size == 1 ? character : 0xFF);
    return place + 1;
  }
  for (int i = size - 1; i > 0; --i, character >>= 6) place[i] = (char)(0x80 | (character & 0x3F));
  *place = (char)(0xF0 << (4 - size) | (int)character);
  return place + size;
}

static char* PutWide(char* place, const char* value, size_t characters) {
  while (characters > 0 && LOAD(uint32_t, value, characters - 1) == 0) --characters;
  for (size_t i = 0; i < characters; ++i) place = PutCharacter(place, LOAD(uint32_t, value, i));
  return place;
}

/* A block of rows that have become UTF-8. */
typedef struct wide_block {
  int32_t offsets[BLOCK_ROWS + 1];
  char data[];
} wide_block;

static size_t RowsOfBlock(size_t characters) {
  const size_t fitting = ((size_t)1 << 20) / characters;
  return fitting == 0 ? 1 : fitting < BLOCK_ROWS ? fitting : BLOCK_ROWS;
}

static ravo_status CheckWideRows(const rows_in* rows, const char* values, size_t characters,
                                 wide_block* block, totals* sum, ravo_error* error) {
  ravo_column column = RAVO_COLUMN_INIT;
  ravo_status status = RAVO_OK;
  column.layout = RAVO_LAYOUT_OFFSETS_32;
  column.values = block->offsets;
  column.data = block->data;
  for (size_t row = 0; status == RAVO_OK && row < rows->count; row += column.length) {
    const size_t left = rows->count - row;
    column.length = left < RowsOfBlock(characters) ? left : RowsOfBlock(characters);
    char* end = block->data;
    block->offsets[0] = 0;
    for (size_t i = 0; i < column.length; ++i) {
      end = PutWide(end, values + (rows->first + row + i) * characters * 4, characters);
      block->offsets[i + 1] = (int32_t)(end - block->data);
    }
    column.data_size = (size_t)(end - block->data);
    status = CheckRows(rows->kind, &column, RAVO_TRUSTED, rows->codes + row, sum, error);
  }
  return status;
}

/* check_wide(kind, bytes, characters, first, count, codes): UTF-32 of one width, NULs at the end */
PyObject* CheckWide(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
  bytes_in bytes = {0};
  rows_in rows;
  totals sum = {0, 0};
  long long characters = 0;
  ravo_error error = RAVO_ERROR_INIT;
  ravo_status status = RAVO_MEMORY;
  if (!TakeCount("check_wide", count, 6) ||
      !TakeNumber(arguments[2], "characters", 1, INT32_MAX / 4, &characters) ||
      !TakeBytes(arguments[1], &bytes))
    return NULL;
  PyObject* answer = NULL;
  if (TakeRows(arguments + 3, arguments[0], (size_t)(bytes.view.len / (4 * characters)), &rows)) {
    const size_t size = RowsOfBlock((size_t)characters) * (size_t)characters * 4;
    wide_block* block = PyMem_Malloc(sizeof *block + size);
    error.status = RAVO_MEMORY;
    if (block != NULL) {
      Py_BEGIN_ALLOW_THREADS;
      status = CheckWideRows(&rows, bytes.view.buf, (size_t)characters, block, &sum, &error);
      Py_END_ALLOW_THREADS;
    }
    PyMem_Free(block);
    answer = EndRows(self, &rows, &sum, status, &error);
  }
  ReleaseBytes(&bytes);
  return answer;
}
